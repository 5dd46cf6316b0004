#include "image/formats/Png.h"

#include "image/Bytes.h"
#include "image/Deflate.h"
#include "image/Exif.h"
#include "image/IccProfile.h"
#include "image/Parallel.h"
#include "image/Raster.h"
#include "image/RowFilter.h"
#include "image/formats/Interlaced.h"

#include <libdeflate.h>

#include <future>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

enum ColorType : uchar { Gray = 0, Rgb = 2, Palette = 3, GrayAlpha = 4, RgbAlpha = 6 };

constexpr qint64 kSignatureBytes = 8;
constexpr double kMetresPerInch = 0.0254;
/// The most that deflate shrinks anything.
constexpr qint64 kDeflateRatio = 1040;
constexpr qsizetype kMaxPaletteBytes = qsizetype{3} * 256;

struct PngFacts {
    ImageHeader header;
    int bits = 0;
    uchar colorType = 0;
    bool interlaced = false;
    QByteArray palette;
    QByteArray transparency; ///< The tRNS chunk.
    QByteArray iccProfile;
    std::vector<FileSlice> data; ///< The IDAT chunks, from the start of the view.
    bool ended = false;          ///< The chunks were read up to IEND.

    [[nodiscard]] int channels() const {
        switch (colorType) {
        case Rgb:
            return 3;
        case GrayAlpha:
            return 2;
        case RgbAlpha:
            return 4;
        default:
            return 1;
        }
    }
    [[nodiscard]] bool hasAlphaChannel() const {
        return colorType == GrayAlpha || colorType == RgbAlpha;
    }
    [[nodiscard]] ImageColor color() const {
        return colorType == Palette       ? ImageColor::Indexed
               : (colorType & Rgb) == Rgb ? ImageColor::Rgb
                                          : ImageColor::Gray;
    }
    [[nodiscard]] qsizetype stride() const { return rowBytes(header.width, channels(), bits); }
    [[nodiscard]] int pixelBytes() const { return std::max(channels() * bits / 8, 1); }
};

void readImageHeaderChunk(QByteArrayView chunk, PngFacts &facts) {
    const auto width = bigEndianAt<quint32>(chunk, 0);
    const auto height = bigEndianAt<quint32>(chunk, 4);
    constexpr quint32 kMax = 0x7FFFFFFF;
    facts.header.width = static_cast<int>(std::min(width, kMax));
    facts.header.height = static_cast<int>(std::min(height, kMax));
    facts.bits = bigEndianAt<uchar>(chunk, 8);
    facts.colorType = bigEndianAt<uchar>(chunk, 9);
    facts.interlaced = bigEndianAt<uchar>(chunk, 12) != 0;
    const bool smallDepth = facts.bits == 1 || facts.bits == 2 || facts.bits == 4;
    const bool valid = facts.colorType == Gray ? smallDepth || facts.bits == 8 || facts.bits == 16
                       : facts.colorType == Palette
                           ? smallDepth || facts.bits == 8
                           : (facts.colorType == Rgb || facts.hasAlphaChannel()) &&
                                 (facts.bits == 8 || facts.bits == 16);
    if (!valid) {
        throw Error(u"The PNG file is damaged"_s);
    }
}

void readDensity(QByteArrayView chunk, PngFacts &facts) {
    if (bigEndianAt<uchar>(chunk, 8) == 1) {
        facts.header.horizontalDpi = bigEndianAt<quint32>(chunk, 0) * kMetresPerInch;
        facts.header.verticalDpi = bigEndianAt<quint32>(chunk, 4) * kMetresPerInch;
    }
}

void readProfile(QByteArrayView chunk, PngFacts &facts) {
    constexpr qsizetype kMaxProfileBytes = 1 << 25;
    const qsizetype nameEnd = chunk.indexOf('\0');
    if (nameEnd < 0 || nameEnd + 2 > chunk.size()) {
        return;
    }
    try {
        facts.iccProfile = inflateUpTo(chunk.sliced(nameEnd + 2), kMaxProfileBytes);
    } catch (const Error &) {
        facts.iccProfile.clear(); // The picture is worth more than a profile that cannot be read.
    }
}

enum class Reading { Header, Pixels };

void readChunk(QByteArrayView type, QByteArrayView chunk, PngFacts &facts) {
    if (type == "IHDR") {
        readImageHeaderChunk(chunk, facts);
    } else if (type == "PLTE") {
        facts.palette = chunk.toByteArray();
    } else if (type == "tRNS") {
        facts.transparency = chunk.toByteArray();
    } else if (type == "pHYs" && chunk.size() >= 9) {
        readDensity(chunk, facts);
    } else if (type == "iCCP") {
        readProfile(chunk, facts);
    } else if (type == "eXIf") {
        facts.header.orientation = readExif(chunk).orientation;
    }
}

bool isOfUse(QByteArrayView type) {
    for (const char *name : {"IHDR", "PLTE", "tRNS", "pHYs", "iCCP", "eXIf"}) {
        if (type == name) {
            return true;
        }
    }
    return false;
}

void requireIntact(QByteArrayView typeAndData, quint32 stated) {
    if (libdeflate_crc32(0, typeAndData.data(), static_cast<size_t>(typeAndData.size())) !=
        stated) {
        throw Error(u"The PNG file is damaged"_s);
    }
}

/// Reads the chunk at byte `at` and returns the place of the next.
qint64 readChunkAt(const FileView &file, qint64 at, Reading reading, PngFacts &facts) {
    constexpr qint64 kLead = 8;
    constexpr qint64 kChecksum = 4;
    const QByteArray lead = file.readExactly(at, kLead);
    const qint64 length = bigEndianAt<quint32>(lead, 0);
    const QByteArray type = lead.sliced(4);
    if (type == "IDAT") {
        if (reading == Reading::Pixels) {
            const QByteArray all = file.readExactly(at + 4, 4 + length + kChecksum);
            requireIntact(QByteArrayView(all).chopped(kChecksum),
                          bigEndianAt<quint32>(all, 4 + length));
        }
        facts.data.push_back({at + kLead, length});
    } else if (isOfUse(type)) {
        readChunk(type, file.readExactly(at + kLead, length), facts);
    }
    facts.ended = type == "IEND";
    return at + kLead + length + kChecksum;
}

PngFacts readFacts(const FileView &file, Reading reading) {
    PngFacts facts;
    facts.header.horizontalDpi = 0;
    facts.header.verticalDpi = 0;
    // Writers put the orientation before the rows or after them, so all chunks are passed.
    for (qint64 at = kSignatureBytes; !facts.ended;) {
        at = readChunkAt(file, at, reading, facts);
    }
    if (facts.bits == 0 || facts.data.empty()) {
        throw Error(u"The PNG file holds no picture"_s);
    }
    if (facts.colorType == Palette && (facts.palette.isEmpty() || facts.palette.size() % 3 != 0 ||
                                       facts.palette.size() > kMaxPaletteBytes)) {
        throw Error(u"The PNG file has no palette"_s);
    }
    return facts;
}

/// The rows as their filters left them, each after its filter's number.
QByteArray inflateRows(const FileView &file, const PngFacts &facts, qsizetype size) {
    qint64 total = 0;
    for (const FileSlice &slice : facts.data) {
        total += slice.length;
    }
    requirePlausible(size, total, kDeflateRatio);
    QByteArray compressed;
    compressed.reserve(total);
    for (const FileSlice &slice : facts.data) {
        compressed += file.readExactly(slice.offset, slice.length);
    }
    return inflateBytes(compressed, size);
}

/// Colour and opacity of filtered rows, taken apart. PNG's filters work on each channel alone, so
/// the filtered bytes can be dealt out as they are, and the colour keeps its filters.
struct DealtRows {
    QByteArray color;
    QByteArray alpha;
};

template<int kColorBytes, int kAlphaBytes>
void dealRow(const uchar *source, int width, uchar *color, uchar *alpha) {
    *color++ = *source;
    *alpha++ = *source++;
    for (int x = 0; x < width; ++x) {
        for (int i = 0; i < kColorBytes; ++i) {
            *color++ = *source++;
        }
        for (int i = 0; i < kAlphaBytes; ++i) {
            *alpha++ = *source++;
        }
    }
}

DealtRows dealRows(const QByteArray &filtered, const PngFacts &facts) {
    const int width = facts.header.width;
    const int height = facts.header.height;
    const qsizetype colorStride = 1 + rowBytes(width, facts.channels() - 1, facts.bits);
    const qsizetype alphaStride = 1 + rowBytes(width, 1, facts.bits);
    DealtRows dealt{QByteArray(height * colorStride, Qt::Uninitialized),
                    QByteArray(height * alphaStride, Qt::Uninitialized)};
    const auto deal = facts.colorType == RgbAlpha
                          ? (facts.bits == 8 ? dealRow<3, 1> : dealRow<6, 2>)
                          : (facts.bits == 8 ? dealRow<1, 1> : dealRow<2, 2>);
    const auto *source = reinterpret_cast<const uchar *>(filtered.constData());
    auto *color = reinterpret_cast<uchar *>(dealt.color.data());
    auto *alpha = reinterpret_cast<uchar *>(dealt.alpha.data());
    for (qsizetype y = 0; y < height; ++y) {
        deal(source + y * (facts.stride() + 1), width, color + y * colorStride,
             alpha + y * alphaStride);
    }
    return dealt;
}

/// The opacity of each pixel of unfiltered rows by a tRNS chunk: of palette entries, or one colour
/// that is transparent.
class TransparencyTable {
  public:
    explicit TransparencyTable(const PngFacts &facts)
        : m_facts(facts) {
        for (qsizetype i = 0; facts.colorType != Palette && i + 2 <= facts.transparency.size();
             i += 2) {
            m_key.push_back(bigEndianAt<quint16>(facts.transparency, i));
        }
    }

    [[nodiscard]] uchar opacity(const uchar *row, int x) const {
        if (m_facts.colorType == Palette) {
            const int index = sample(row, x);
            return index < m_facts.transparency.size()
                       ? static_cast<uchar>(m_facts.transparency.at(index))
                       : uchar(0xFF);
        }
        const int channels = m_facts.channels();
        for (int c = 0; c < channels; ++c) {
            if (c >= int(m_key.size()) || sample(row, x * channels + c) != m_key[size_t(c)]) {
                return 0xFF;
            }
        }
        return 0;
    }

  private:
    [[nodiscard]] int sample(const uchar *row, int index) const {
        return m_facts.bits == 16 ? qFromBigEndian<quint16>(row + 2 * qsizetype(index))
                                  : packedSample(row, index, m_facts.bits);
    }

    const PngFacts &m_facts;
    std::vector<int> m_key;
};

AlphaPlane transparencyOf(const QByteArray &rows, const PngFacts &facts) {
    const int width = facts.header.width;
    AlphaPlane plane{8, allocateRows(facts.header.height, width)};
    const TransparencyTable table(facts);
    auto *target = reinterpret_cast<uchar *>(plane.samples.data());
    for (int y = 0; y < facts.header.height; ++y) {
        const auto *row = reinterpret_cast<const uchar *>(rows.constData()) + y * facts.stride();
        for (int x = 0; x < width; ++x) {
            *target++ = table.opacity(row, x);
        }
    }
    return plane;
}

PdfImage describe(const PngFacts &facts) {
    PdfImage image;
    image.width = facts.header.width;
    image.height = facts.header.height;
    image.bitsPerComponent = facts.bits;
    image.color = facts.color();
    image.palette = image.color == ImageColor::Indexed ? facts.palette : QByteArray();
    image.iccProfile = fittingProfile(facts.iccProfile, image.color);
    image.filter = ImageFilter::Flate;
    image.predictor = 15;
    return image;
}

/// The file's own compressed rows, with a soft mask where a tRNS chunk makes some transparent.
PdfImage withOwnRows(const FileView &file, const PngFacts &facts) {
    PdfImage image = describe(facts);
    image.embeddedAs = EmbeddedAs::OwnBytes;
    for (const FileSlice &slice : facts.data) {
        image.slices.push_back({file.offset() + slice.offset, slice.length});
    }
    if (!facts.transparency.isEmpty()) {
        const int height = facts.header.height;
        const QByteArray rows =
            unfilterRows(inflateRows(file, facts, height * (facts.stride() + 1)), height,
                         facts.stride(), facts.pixelBytes());
        image.softMask = encodeAlpha(transparencyOf(rows, facts), image.width, height);
    }
    return image;
}

PdfImage withDealtRows(const FileView &file, const PngFacts &facts) {
    PdfImage image = describe(facts);
    DealtRows dealt =
        dealRows(inflateRows(file, facts, facts.header.height * (facts.stride() + 1)), facts);
    auto mask = runAsync(dealt.color.size(), [&] {
        AlphaPlane plane{facts.bits, {}};
        plane.samples = unfilterRows(std::move(dealt.alpha), image.height,
                                     rowBytes(image.width, 1, facts.bits), facts.bits / 8);
        return encodeAlpha(plane, image.width, image.height);
    });
    image.data = deflateBytes(dealt.color);
    image.softMask = mask.get();
    return image;
}

PdfImage withInterlacedRows(const FileView &file, const PngFacts &facts) {
    const InterlacedShape shape{facts.header.width, facts.header.height,
                                facts.channels() * facts.bits};
    QByteArray rows = straightenInterlaced(inflateRows(file, facts, interlacedBytes(shape)), shape);
    Raster raster;
    raster.width = facts.header.width;
    raster.height = facts.header.height;
    raster.bits = facts.bits;
    raster.color = facts.color();
    raster.palette = facts.palette;
    raster.iccProfile = facts.iccProfile;
    if (facts.hasAlphaChannel()) {
        DealtRows dealt = dealRows(rows, facts);
        const qsizetype alphaStride = rowBytes(raster.width, 1, raster.bits);
        raster.samples = unfilterRows(std::move(dealt.color), raster.height, raster.stride(), 1);
        raster.alpha = AlphaPlane{
            raster.bits, unfilterRows(std::move(dealt.alpha), raster.height, alphaStride, 1)};
    } else {
        raster.samples = unfilterRows(std::move(rows), raster.height, raster.stride(), 1);
        if (!facts.transparency.isEmpty()) {
            raster.alpha = transparencyOf(raster.samples, facts);
        }
    }
    return encodeRaster(std::move(raster));
}

bool recognises(QByteArrayView head) {
    return head.startsWith("\x89PNG\r\n\x1A\n");
}

ImageHeader readHeader(const FileView &file) {
    return readFacts(file, Reading::Header).header;
}

PdfImage encode(const FileView &file) {
    const PngFacts facts = readFacts(file, Reading::Pixels);
    if (facts.interlaced) {
        return withInterlacedRows(file, facts);
    }
    return facts.hasAlphaChannel() ? withDealtRows(file, facts) : withOwnRows(file, facts);
}

} // namespace

Decoder pngDecoder() {
    return {ImageFormat::Png, {QLatin1StringView("png")}, recognises, readHeader, encode};
}

} // namespace folioforge
