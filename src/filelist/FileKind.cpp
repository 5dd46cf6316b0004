#include "filelist/FileKind.h"

#include <QFile>

#include <array>

namespace folioforge {

FileKind fileKind(const QString &path) {
    const QString extension = pathExtension(path).toLower();
    for (const FileKind kind : std::array{FileKind::Text, FileKind::Image, FileKind::Pdf}) {
        if (extensionsOf(kind).contains(extension)) {
            return kind;
        }
    }
    return FileKind::Other;
}

const QStringList &extensionsOf(FileKind kind) {
    static const QStringList text{QStringLiteral("txt")};
    static const QStringList image{
        QStringLiteral("png"), QStringLiteral("bmp"),  QStringLiteral("gif"),
        QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("icns"),
        QStringLiteral("ico"), QStringLiteral("exr"),  QStringLiteral("jp2"),
        QStringLiteral("tif"), QStringLiteral("tiff"), QStringLiteral("tga"),
        QStringLiteral("psd")};
    static const QStringList pdf{QStringLiteral("pdf")};
    static const QStringList none;
    switch (kind) {
    case FileKind::Text:
        return text;
    case FileKind::Image:
        return image;
    case FileKind::Pdf:
        return pdf;
    case FileKind::Other:
        break;
    }
    return none;
}

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
    constexpr qsizetype kLongestName = 255; // Bytes, NAME_MAX.
    while (!base.isEmpty() && QFile::encodeName(base + ending).size() > kLongestName) {
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
