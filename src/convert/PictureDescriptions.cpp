// SPDX-License-Identifier: Apache-2.0

#include "convert/PictureDescriptions.h"

namespace folioforge {

namespace {

/// The ends of a path that begin with a whole name, the longest first.
QStringList namesOf(const QString &path) {
    QStringList names{path};
    for (qsizetype slash = path.indexOf(u'/'); slash >= 0; slash = path.indexOf(u'/', slash + 1)) {
        names += path.sliced(slash + 1);
    }
    return names;
}

} // namespace

QString PictureDescriptions::of(const QString &path) const {
    for (const QString &name : namesOf(path)) {
        if (const auto found = m_byName.find(name); found != m_byName.end()) {
            return found->second;
        }
    }
    return {};
}

QStringList PictureDescriptions::unused(const QStringList &paths) const {
    std::map<QString, QString> unused = m_byName;
    for (auto path = paths.begin(); path != paths.end() && !unused.empty(); ++path) {
        for (const QString &name : namesOf(*path)) {
            unused.erase(name);
        }
    }
    QStringList names;
    for (const auto &[name, description] : unused) {
        names += name;
    }
    return names;
}

} // namespace folioforge
