// SPDX-License-Identifier: Apache-2.0

#include "convert/PictureDescriptions.h"

#include <set>

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
    std::set<QString> known;
    for (const QString &path : paths) {
        const QStringList names = namesOf(path);
        known.insert(names.begin(), names.end());
    }
    QStringList unused;
    for (const auto &[name, description] : m_byName) {
        if (!known.contains(name)) {
            unused += name;
        }
    }
    return unused;
}

} // namespace folioforge
