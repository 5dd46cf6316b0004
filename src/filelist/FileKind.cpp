// SPDX-License-Identifier: Apache-2.0

#include "filelist/FileKind.h"

#include "files/PathNames.h"

#include <array>

using namespace Qt::StringLiterals;

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
    static const QStringList text{u"txt"_s};
    static const QStringList image{u"png"_s,  u"bmp"_s, u"gif"_s, u"jpg"_s, u"jpeg"_s,
                                   u"icns"_s, u"ico"_s, u"exr"_s, u"jp2"_s, u"tif"_s,
                                   u"tiff"_s, u"tga"_s, u"psd"_s};
    static const QStringList pdf{u"pdf"_s};
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
