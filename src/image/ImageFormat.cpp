// SPDX-License-Identifier: Apache-2.0

#include "image/ImageFormat.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "image/formats/Formats.h"

#include <QFileInfo>

#include <algorithm>

namespace folioforge {

namespace {

const std::vector<ImageFormat> &formats() {
    static const std::vector<ImageFormat> table = {
        jpegFormat(), pngFormat(),  tiffFormat(),   jpeg2000Format(), bmpFormat(),
        gifFormat(),  psdFormat(),  exrFormat(),    icnsFormat(),     icoFormat(),
        webpFormat(), heifFormat(), jpegXlFormat(), tgaFormat(),
    };
    return table;
}

} // namespace

const ImageFormat &formatOf(const FileView &file) {
    const QByteArray head = file.read(0, kSniffedBytes);
    if (head.isEmpty()) {
        throw Error(Reasons::tr("The file is empty"));
    }
    const auto &table = formats();
    auto found = std::ranges::find_if(table, [&](const ImageFormat &format) {
        return format.recognises != nullptr && format.recognises(head);
    });
    if (found == table.end()) {
        const QString extension = QFileInfo(file.path()).suffix().toLower();
        found = std::ranges::find_if(table, [&](const ImageFormat &format) {
            return std::ranges::find(format.extensions, extension) != format.extensions.end();
        });
    }
    if (found == table.end()) {
        throw Error(Reasons::tr("The file is no image of a known format"));
    }
    return *found;
}

} // namespace folioforge
