#include "image/Sniffer.h"

#include "error/Error.h"
#include "image/formats/Bmp.h"
#include "image/formats/Exr.h"
#include "image/formats/Gif.h"
#include "image/formats/Icns.h"
#include "image/formats/Ico.h"
#include "image/formats/Jpeg.h"
#include "image/formats/Jpeg2000.h"
#include "image/formats/Png.h"
#include "image/formats/Psd.h"
#include "image/formats/Tga.h"
#include "image/formats/Tiff.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

const std::vector<Decoder> &decoders() {
    static const std::vector<Decoder> table = {
        jpegDecoder(), pngDecoder(), tiffDecoder(), jpeg2000Decoder(), bmpDecoder(), gifDecoder(),
        psdDecoder(),  exrDecoder(), icnsDecoder(), icoDecoder(),      tgaDecoder(),
    };
    return table;
}

} // namespace

const Decoder &decoderFor(const FileView &file) {
    const QByteArray head = file.read(0, kSniffedBytes);
    if (head.isEmpty()) {
        throw Error(u"The file is empty"_s);
    }
    const auto &table = decoders();
    auto found = std::ranges::find_if(table, [&](const Decoder &decoder) {
        return decoder.recognises != nullptr && decoder.recognises(head);
    });
    if (found == table.end()) {
        const QString extension = QFileInfo(file.path()).suffix().toLower();
        found = std::ranges::find_if(table, [&](const Decoder &decoder) {
            return std::ranges::find(decoder.extensions, extension) != decoder.extensions.end();
        });
    }
    if (found == table.end()) {
        throw Error(u"The file is no image of a known format"_s);
    }
    return *found;
}

} // namespace folioforge
