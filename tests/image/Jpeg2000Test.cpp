// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Jpeg2000.h"
#include "DecodedImage.h"
#include "FileParts.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <openjpeg.h>

#include <memory>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// The beginning of a profile, which is what tells its colour space.
QByteArray profileOf(const char *colorSpace) {
    QByteArray profile(200, '\0');
    return profile.replace(0, 4, big(quint32(200)))
        .replace(12, 4, "prtr")
        .replace(16, 4, colorSpace)
        .replace(36, 4, "acsp");
}

/// The boxes of a picture whose channel `alpha` is its opacity and the others colours in order.
QByteArray headerOf(const QList<QByteArray> &components, int alpha, const QByteArray &profile) {
    const auto count = static_cast<int>(components.size());
    QByteArray channels = big(quint16(count));
    for (int channel = 0, color = 0; channel < count; ++channel) {
        const bool isAlpha = channel == alpha;
        channels += big(quint16(channel)) + big(quint16(isAlpha ? 1 : 0)) +
                    big(quint16(isAlpha ? 0 : ++color));
    }
    return box("ihdr", big(quint32(1)) + big(quint32(components[0].size())) + big(quint16(count)) +
                           QByteArray::fromHex("07070000")) +
           box("colr", QByteArray::fromHex("020000") + profile) + box("cdef", channels);
}

} // namespace

class Jpeg2000Test : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void resolutionBoxIsPixelsAMetre() {
        // Vertical 5000 / 1 * 10^0, horizontal 1 / 1 * 10^4: 127 and 254 per inch.
        const QByteArray numbers = QByteArray::fromHex("13880001"
                                                       "00010001"
                                                       "00"
                                                       "04");
        const ImageHeader header =
            readImageHeader(withHeaderBox(box("res ", box("resd", numbers))));
        QCOMPARE(header.verticalDpi, 127.0);
        QCOMPARE(header.horizontalDpi, 254.0);
    }

    void shownResolutionCountsMoreThanCaptured() {
        const QByteArray captured = QByteArray::fromHex("00010001"
                                                        "00010001"
                                                        "04"
                                                        "04");
        const QByteArray shown = QByteArray::fromHex("13880001"
                                                     "13880001"
                                                     "00"
                                                     "00");
        const ImageHeader one =
            readImageHeader(withHeaderBox(box("res ", box("resc", captured) + box("resd", shown))));
        QCOMPARE(one.horizontalDpi, 127.0);
        const ImageHeader other =
            readImageHeader(withHeaderBox(box("res ", box("resd", shown) + box("resc", captured))));
        QCOMPARE(other.horizontalDpi, 127.0);
    }

    void boxesInBoxesWithoutEndAreNoPicture() {
        QByteArray bytes = bytesOf(imageFile(u"colour.jp2"_s)).first(12);
        constexpr int kBoxes = 100'000;
        for (int i = kBoxes; i > 0; --i) {
            QByteArray length(4, '\0');
            qToBigEndian(quint32(8 * i), length.data());
            bytes += length + "jp2h";
        }
        QCOMPARE(refusalOf(writeFile(m_folder.filePath(u"deep.jp2"_s), bytes)),
                 u"The JPEG 2000 file holds no picture"_s);
    }

    void opacityIsTakenFromAmongTheColors_data() {
        QTest::addColumn<QByteArray>("colorSpace");
        QTest::addColumn<int>("colors");
        QTest::addColumn<int>("alpha");
        QTest::newRow("behind four inks") << QByteArray("CMYK") << 4 << 4;
        QTest::newRow("before four inks") << QByteArray("CMYK") << 4 << 0;
        QTest::newRow("behind three colours") << QByteArray("RGB ") << 3 << 3;
        QTest::newRow("before three colours") << QByteArray("RGB ") << 3 << 0;
        QTest::newRow("behind a grey") << QByteArray("GRAY") << 1 << 1;
    }

    void opacityIsTakenFromAmongTheColors() {
        QFETCH(QByteArray, colorSpace);
        QFETCH(int, colors);
        QFETCH(int, alpha);
        const QByteArray opacity("\x01\x80\xFF");
        const QList<QByteArray> inks{"\x10\x11\x12", "\x20\x21\x22", "\x30\x31\x32",
                                     "\x40\x41\x42"};
        QList<QByteArray> components = inks.first(colors);
        components.insert(alpha, opacity);
        const QByteArray bytes =
            bytesOf(imageFile(u"colour.jp2"_s)).first(12) +
            box("ftyp", QByteArray("jp2 \0\0\0\0jp2 ", 12)) +
            box("jp2h", headerOf(components, alpha, profileOf(colorSpace.constData()))) +
            box("jp2c", codestream(components));
        const SourceFile file =
            SourceFile::open(writeFile(m_folder.filePath(u"opacity.jp2"_s), bytes));
        const Jpeg2000Metadata metadata = readJpeg2000Metadata(file.view());
        const Raster raster =
            decodeJpeg2000(file.view(), metadata, readJpeg2000Structure(file.view(), metadata))
                .raster;
        QByteArray pixels;
        for (int x = 0; x < 3; ++x) {
            for (int c = 0; c < colors; ++c) {
                pixels += inks[c][x];
            }
        }
        QCOMPARE(raster.samples.toHex(), pixels.toHex());
        QVERIFY(raster.alpha.has_value());
        QCOMPARE(raster.alpha->samples.toHex(), opacity.toHex());
    }

    void fourthChannelIsOpacityWhereItVaries_data() {
        QTest::addColumn<QByteArray>("fourth");
        QTest::addColumn<bool>("isOpacity");
        QTest::newRow("varies") << QByteArray("\x01\x80\xFF") << true;
        QTest::newRow("hides all") << QByteArray(3, '\0') << false;
        QTest::newRow("is full") << QByteArray(3, '\xFF') << false;
    }

    void fourthChannelIsOpacityWhereItVaries() {
        QFETCH(QByteArray, fourth);
        QFETCH(bool, isOpacity);
        const QByteArray file = fileOf({"\x10\x11\x12", "\x20\x21\x22", "\x30\x31\x32", fourth});
        const QByteArray icon =
            "icns" + big(quint32(file.size() + 16)) + "ic07" + big(quint32(file.size() + 8)) + file;
        for (const PdfImage &image :
             {toPdfImage(writeFile(m_folder.filePath(u"four.jp2"_s), file)),
              toPdfImage(writeFile(m_folder.filePath(u"four.icns"_s), icon))}) {
            QCOMPARE(rgbRows(image).toHex(), "102030112131122232");
            QCOMPARE(image.softMask != nullptr, isOpacity);
            if (isOpacity) {
                QCOMPARE(decoded(*image.softMask).pixel(1, 0), qRgb(0x80, 0x80, 0x80));
            }
        }
    }

    void subsampledComponentsAreDecoded() {
        // Half as many samples of colour: red twice, then blue twice, in enumerated sYCC.
        const QByteArray codes = codestream({"\x4C\x4C\x1D\x1D", "\x55\xFF", "\xFF\x6B"});
        const PdfImage image =
            toPdfImage(writeFile(m_folder.filePath(u"half.jp2"_s), fileAround(codes, 4, 3, 18)));
        const QByteArray rows = rgbRows(image);
        for (int x = 0; x < 4; ++x) {
            const QByteArray expected = QByteArray::fromHex(x < 2 ? "FE0000" : "0000FE");
            for (int c = 0; c < 3; ++c) {
                QVERIFY(std::abs(uchar(rows[3 * x + c]) - uchar(expected[c])) <= 1);
            }
        }
        QVERIFY(image.warnings.empty());
    }

    void reorderedChannelsAreDecoded() {
        const QByteArray codes = codestream({"\x30\x31\x32", "\x20\x21\x22", "\x10\x11\x12"});
        QByteArray channels = big(quint16(3)); // The first is blue, the last red.
        for (int channel = 0; channel < 3; ++channel) {
            channels += big(quint16(channel)) + big(quint16(0)) + big(quint16(3 - channel));
        }
        const PdfImage image = toPdfImage(writeFile(
            m_folder.filePath(u"order.jp2"_s), fileAround(codes, 3, 3, 16, box("cdef", channels))));
        QCOMPARE(image.filter, ImageFilter::Flate);
        QCOMPARE(rgbRows(image).toHex(), "102030112131122232");
    }

  private:
    QTemporaryDir m_folder;

    /// A file of one row of pixels in an enumerated colour space, with more boxes in its header.
    static QByteArray fileAround(const QByteArray &codestream, int width, int components,
                                 int colorSpace, const QByteArray &boxes = {}) {
        return bytesOf(imageFile(u"colour.jp2"_s)).first(12) +
               box("ftyp", QByteArray("jp2 \0\0\0\0jp2 ", 12)) +
               box("jp2h",
                   box("ihdr", big(quint32(1)) + big(quint32(width)) + big(quint16(components)) +
                                   QByteArray::fromHex("07070000")) +
                       box("colr", QByteArray::fromHex("010000") + big(quint32(colorSpace))) +
                       boxes) +
               box("jp2c", codestream);
    }

    /// Of these components in sRGB.
    QByteArray fileOf(const QList<QByteArray> &components) {
        return fileAround(codestream(components), static_cast<int>(components[0].size()),
                          static_cast<int>(components.size()), 16);
    }

    /// The test picture with this box at the end of its header.
    QString withHeaderBox(const QByteArray &box) {
        QByteArray bytes = bytesOf(imageFile(u"colour.jp2"_s));
        const qsizetype header = bytes.indexOf("jp2h") - 4;
        const auto length = qFromBigEndian<quint32>(bytes.constData() + header);
        bytes.insert(header + length, box);
        qToBigEndian(length + quint32(box.size()), bytes.data() + header);
        return writeFile(m_folder.filePath(u"picture.jp2"_s), bytes);
    }

    /// The codestream of a row of pixels: the samples of each of its components, of which those
    /// with half as many as the first are sampled at half the rate.
    QByteArray codestream(const QList<QByteArray> &components) {
        const auto width = static_cast<OPJ_UINT32>(components[0].size());
        std::vector<opj_image_cmptparm_t> shapes(static_cast<size_t>(components.size()));
        for (size_t c = 0; c < shapes.size(); ++c) {
            const auto own = static_cast<OPJ_UINT32>(components[qsizetype(c)].size());
            shapes[c] = {width / own, 1, own, 1, 0, 0, 8, 8, 0};
        }
        const std::unique_ptr<opj_image_t, decltype(&opj_image_destroy)> image(
            opj_image_create(static_cast<OPJ_UINT32>(shapes.size()), shapes.data(),
                             OPJ_CLRSPC_UNSPECIFIED),
            opj_image_destroy);
        image->x1 = width;
        image->y1 = 1;
        for (qsizetype c = 0; c < components.size(); ++c) {
            std::transform(components[c].begin(), components[c].end(), image->comps[c].data,
                           [](char sample) { return static_cast<uchar>(sample); });
        }
        opj_cparameters_t parameters;
        opj_set_default_encoder_parameters(&parameters); // Without loss.
        parameters.tcp_numlayers = 1;
        parameters.cp_disto_alloc = 1;
        parameters.numresolution = 1;
        const std::unique_ptr<opj_codec_t, decltype(&opj_destroy_codec)> codec(
            opj_create_compress(OPJ_CODEC_J2K), opj_destroy_codec);
        const QString path = m_folder.filePath(u"codestream"_s);
        std::unique_ptr<opj_stream_t, decltype(&opj_stream_destroy)> stream(
            opj_stream_create_default_file_stream(path.toLocal8Bit().constData(), OPJ_FALSE),
            opj_stream_destroy);
        const bool written =
            opj_setup_encoder(codec.get(), &parameters, image.get()) != OPJ_FALSE &&
            opj_start_compress(codec.get(), image.get(), stream.get()) != OPJ_FALSE &&
            opj_encode(codec.get(), stream.get()) != OPJ_FALSE &&
            opj_end_compress(codec.get(), stream.get()) != OPJ_FALSE;
        stream.reset(); // Which writes the rest.
        return written ? bytesOf(path) : QByteArray();
    }
};

FOLIOFORGE_TEST(Jpeg2000Test)
#include "Jpeg2000Test.moc"
