// SPDX-License-Identifier: Apache-2.0

#include "OddDocuments.h"

#include "support/Files.h"
#include "support/PhotoPage.h"
#include "support/Places.h"

#include <QtEndian>

using namespace Qt::StringLiterals;

namespace folioforge::test {

namespace {

QByteArray hex(const QByteArray &data) {
    return data.toHex() + ">";
}

QByteArray ascii85(const QByteArray &data) {
    QByteArray text;
    for (qsizetype at = 0; at < data.size(); at += 4) {
        QByteArray group = data.mid(at, 4);
        const auto length = group.size();
        group.append(4 - length, '\0');
        auto value = qFromBigEndian<quint32>(group.constData());
        QByteArray digits(5, '!');
        for (int i = 4; i >= 0; --i, value /= 85) {
            digits[i] = static_cast<char>('!' + value % 85);
        }
        text += length == 4 && digits == "!!!!!" ? QByteArray("z") : digits.first(length + 1);
    }
    return text + "~>";
}

QByteArray runLength(const QByteArray &data) {
    QByteArray runs;
    for (qsizetype at = 0; at < data.size(); at += 128) {
        const QByteArray piece = data.mid(at, 128);
        runs += static_cast<char>(piece.size() - 1) + piece;
    }
    return runs + '\x80';
}

/// LZW data of nine-bit codes alone: the table is cleared before it would need ten bits.
QByteArray lzw(const QByteArray &data) {
    constexpr quint32 kClear = 256;
    constexpr quint32 kEnd = 257;
    constexpr qsizetype kBetweenClears = 200;
    QByteArray codes;
    quint32 waiting = 0;
    int bits = 0;
    const auto put = [&](quint32 code) {
        waiting = waiting << 9U | code;
        for (bits += 9; bits >= 8; bits -= 8) {
            codes += static_cast<char>(waiting >> (bits - 8) & 0xFF);
        }
    };
    for (qsizetype at = 0; at < data.size(); ++at) {
        if (at % kBetweenClears == 0) {
            put(kClear);
        }
        put(static_cast<uchar>(data[at]));
    }
    put(kEnd);
    return codes + static_cast<char>(waiting << (8 - bits) & 0xFF);
}

/// The page whose content is `data`, with the entries that say how it is encoded.
QByteArray encoded(const QByteArray &keys, const QByteArray &data) {
    return onePage().stream(4, keys, data).bytes();
}

/// A page filled by the image 6.
PdfFixture imagePage(const QByteArray &keys, const QByteArray &data) {
    return pageWith("/XObject << /Im 6 0 R >>", "q 180 0 0 80 10 10 cm /Im Do Q")
        .stream(6, "/Type /XObject /Subtype /Image " + keys, data);
}

constexpr int kSide = 16; ///< Pixels of a side of the images.

/// RGB rows, and their PNG filter numbers where `filter` is one.
QByteArray rgbRows(int filter = -1) {
    const QImage image = photo(kSide, kSide);
    QByteArray rows;
    for (int y = 0; y < kSide; ++y) {
        rows += filter < 0 ? QByteArray() : QByteArray(1, static_cast<char>(filter));
        rows.append(reinterpret_cast<const char *>(image.constScanLine(y)), qsizetype(kSide) * 3);
    }
    return rows;
}

const QByteArray kRgb("/Width 16 /Height 16 /ColorSpace /DeviceRGB /BitsPerComponent 8 ");

/// The image's rows read with a predictor; whatever they then show, they show it in both files.
QByteArray predicted(const QByteArray &predictor, int filter = -1) {
    return imagePage(kRgb +
                         "/Filter /FlateDecode /DecodeParms << /Colors 3 /Columns 16 "
                         "/Predictor " +
                         predictor + " >>",
                     flate(rgbRows(filter)))
        .bytes();
}

/// The bits that `text` spells, the high one first.
QByteArray bitsOf(const QByteArray &text) {
    QByteArray bytes((text.size() + 7) / 8, '\0');
    for (qsizetype i = 0; i < text.size(); ++i) {
        bytes[i / 8] = static_cast<char>(bytes[i / 8] | (text[i] == '1' ? 0x80 >> i % 8 : 0));
    }
    return bytes;
}

/// A black bar down the middle of 16 x 16 pixels in group 4 (ITU-T T.6): in the first row runs of 4
/// white and 8 black pixels and what is left, in the others three changes where they were above.
QByteArray faxedBar() {
    return bitsOf("001"
                  "1011"
                  "000101"
                  "1" +
                  QByteArray("111").repeated(kSide - 1) +
                  "000000000001"
                  "000000000001");
}

QByteArray fax(const QByteArray &parameters) {
    return imagePage("/Width 16 /Height 16 /ColorSpace /DeviceGray /BitsPerComponent 1 /Filter "
                     "/CCITTFaxDecode /DecodeParms << /K -1 /Columns 16 " +
                         parameters + " >>",
                     faxedBar())
        .bytes();
}

QByteArray number32(quint32 value) {
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

/// A segment of a JBIG2 stream (ITU-T T.88, 7.2) of page 1.
QByteArray segment(char number, char type, const QByteArray &data) {
    return number32(static_cast<quint32>(number)) + type + '\0' + '\1' +
           number32(static_cast<quint32>(data.size())) + data;
}

/// A page and on it a generic region in the coding of fax machines (7.4.6).
QByteArray jbig2() {
    const QByteArray side = number32(kSide);
    const QByteArray page = side + side + number32(0) + number32(0) + '\0' + QByteArray(2, '\0');
    const QByteArray region = side + side + number32(0) + number32(0) + '\0' + '\1' + faxedBar();
    return imagePage("/Width 16 /Height 16 /ColorSpace /DeviceGray /BitsPerComponent 1 /Filter "
                     "/JBIG2Decode",
                     segment(0, 48, page) + segment(1, 38, region))
        .bytes();
}

QByteArray jpx(const QString &name) {
    return imagePage("/Width 16 /Height 16 /Filter /JPXDecode",
                     readFile(inSource(u"tests/data/image/"_s) + name))
        .bytes();
}

} // namespace

QList<OddDocument> oddFilters() {
    const QByteArray picture = jpeg(photo(kSide, kSide));
    const QByteArray chained("/Filter [/ASCII85Decode /LZWDecode /RunLengthDecode /FlateDecode]");
    return {
        {"hexadecimal", encoded("/Filter /ASCIIHexDecode", hex(kWords))},
        {"base 85", encoded("/Filter /ASCII85Decode", ascii85(kWords))},
        {"run lengths", encoded("/Filter /RunLengthDecode", runLength(kWords))},
        {"LZW", encoded("/Filter /LZWDecode", lzw(kWords))},
        {"LZW with a late change",
         encoded("/Filter /LZWDecode /DecodeParms << /EarlyChange 0 >>", lzw(kWords))},
        {"Flate", encoded("/Filter /FlateDecode", flate(kWords))},
        {"one filter in an array",
         encoded("/Filter [/FlateDecode] /DecodeParms [null]", flate(kWords))},
        {"no filter in an array", encoded("/Filter []", kWords)},
        {"four filters", encoded(chained, ascii85(lzw(runLength(flate(kWords)))))},
        {"Flate within Flate",
         encoded("/Filter [/FlateDecode /FlateDecode]", flate(flate(kWords)))},
        {"the filter that changes nothing",
         encoded("/Filter [/Crypt /FlateDecode] /DecodeParms [<< /Name /Identity >> null]",
                 flate(kWords))},
        {"an indirect filter with indirect parameters",
         onePage()
             .stream(4, "/Filter 6 0 R /DecodeParms 7 0 R", flate(kWords))
             .object(6, "[/FlateDecode]")
             .object(7, "[<< /Predictor 8 0 R >>]")
             .object(8, "1")
             .bytes()},
        {"PNG's predictor None", predicted("10", 0)},
        {"PNG's predictor Sub", predicted("11", 1)},
        {"PNG's predictor Up", predicted("12", 2)},
        {"PNG's predictor Average", predicted("13", 3)},
        {"PNG's predictor Paeth", predicted("15", 4)},
        {"TIFF's predictor", predicted("2")},
        {"a JPEG", imagePage(kRgb + "/Filter /DCTDecode", picture).bytes()},
        {"a JPEG within Flate",
         imagePage(kRgb + "/Filter [/FlateDecode /DCTDecode]", flate(picture)).bytes()},
        {"a JPEG in base 85",
         imagePage(kRgb + "/Filter [/ASCII85Decode /DCTDecode]", ascii85(picture)).bytes()},
        {"fax", fax("/Rows 16")},
        {"fax, black is one", fax("/BlackIs1 true /EndOfBlock true")},
        {"JBIG2", jbig2()},
        {"JPEG 2000", jpx(u"colour.jp2"_s)},
        {"a JPEG 2000 codestream", jpx(u"codestream.jp2"_s)},
    };
}

} // namespace folioforge::test
