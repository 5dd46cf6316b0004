#include "filelist/FileKind.h"

#include "files/PathNames.h"

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

} // namespace folioforge
