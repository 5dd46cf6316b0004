// SPDX-License-Identifier: Apache-2.0

#include "files/PathNames.h"

#include <QFile>

namespace folioforge {

QString pathExtension(const QString &path) {
    const QString name = lastPathComponent(path);
    const qsizetype stop = name.lastIndexOf(u'.');
    return stop > 0 ? name.sliced(stop + 1) : QString();
}

QString withoutExtension(const QString &path) {
    const QString extension = pathExtension(path);
    if (extension.isEmpty()) {
        return path;
    }
    return path.first(path.lastIndexOf(u'.'));
}

QString fittingName(QString base, const QString &ending) {
    constexpr qsizetype kMaxNameLength = 255; // Bytes, NAME_MAX.
    while (!base.isEmpty() && QFile::encodeName(base + ending).size() > kMaxNameLength) {
        const bool pair = base.size() > 1 && base.back().isLowSurrogate();
        base.chop(pair ? 2 : 1);
    }
    return base + ending;
}

QString fittingName(const QString &name) {
    const QString base = withoutExtension(name);
    return fittingName(base, name.sliced(base.size()));
}

QString lastPathComponent(const QString &path) {
    QStringView rest(path);
    while (rest.endsWith(u'/')) {
        rest.chop(1);
    }
    return rest.sliced(rest.lastIndexOf(u'/') + 1).toString();
}

} // namespace folioforge
