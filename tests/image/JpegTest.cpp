// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "FileParts.h"
#include "support/TestUnit.h"

#include "error/Error.h"
#include "files/SystemCalls.h"
#include "support/Files.h"

#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

QByteArray profileFor(const char *space, qsizetype size) {
    QByteArray profile(size, '\0');
    qToBigEndian(quint32(size), profile.data());
    profile.replace(12, 4, "mntr").replace(16, 4, space).replace(36, 4, "acsp");
    return profile;
}

/// `density` pixels per `unit`: 0 names none, 2 is an inch and 3 a centimetre.
QByteArray exifBlock(int orientation, quint32 density, bool littleEndian, int unit = 0) {
    QByteArray block = littleEndian ? QByteArray("II*\0", 4) : QByteArray("MM\0*", 4);
    const auto half = [&](int value) {
        QByteArray bytes(2, '\0');
        littleEndian ? qToLittleEndian(quint16(value), bytes.data())
                     : qToBigEndian(quint16(value), bytes.data());
        block += bytes;
    };
    const auto word = [&](quint32 value) {
        QByteArray bytes(4, '\0');
        littleEndian ? qToLittleEndian(value, bytes.data()) : qToBigEndian(value, bytes.data());
        block += bytes;
    };
    word(8);
    const int entries = unit == 0 ? 3 : 4;
    const quint32 densityAt = 14 + 12 * quint32(entries);
    half(entries);
    half(274), half(3), word(1), half(orientation), half(0);
    half(282), half(5), word(1), word(densityAt);
    half(283), half(5), word(1), word(densityAt);
    if (unit != 0) {
        half(296), half(3), word(1), half(unit), half(0);
    }
    word(0);
    word(density), word(1);
    return QByteArray("Exif\0\0", 6) + block;
}

/// Counts the reads of whole pieces that begin with the first segment of a file.
class HeaderReads final : public SystemCalls {
  public:
    ssize_t pread(int fd, void *data, std::size_t size, off_t offset) override {
        constexpr off_t kFirstSegment = 2;
        count += offset == kFirstSegment ? 1 : 0;
        return SystemCalls::pread(fd, data, size, offset);
    }
    int count = 0;
};

} // namespace

class JpegTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void adobeInkIsInverted() {
        QVERIFY(bytesOf(imageFile(u"ink.jpg"_s)).contains("Adobe"));
        const std::vector<double> inverted = {1, 0, 1, 0, 1, 0, 1, 0};
        QCOMPARE(toPdfImage(imageFile(u"ink.jpg"_s)).decode, inverted);
    }

    void inkWithoutAdobesMarkIsNot() {
        QByteArray bytes = bytesOf(imageFile(u"ink.jpg"_s));
        bytes.replace("Adobe", "Other");
        QVERIFY(toPdfImage(write(bytes)).decode.empty());
    }

    void theHeaderIsReadOnceForPixelsAndPlace() {
        HeaderReads reads;
        QVERIFY(!toPdfImage(imageFile(u"photo.jpg"_s), reads).slices.empty());
        QCOMPARE(reads.count, 1);
    }

    void jfifDensityPerInchAndPerCentimetre() {
        QByteArray bytes = bytesOf(imageFile(u"photo.jpg"_s));
        QCOMPARE(bytes.mid(6, 4), QByteArray("JFIF"));
        bytes[13] = 1;
        qToBigEndian(quint16(300), bytes.data() + 14);
        qToBigEndian(quint16(150), bytes.data() + 16);
        QCOMPARE(readImageHeader(write(bytes)).horizontalDpi, 300.0);
        QCOMPARE(readImageHeader(write(bytes)).verticalDpi, 150.0);
        bytes[13] = 2;
        QCOMPARE(readImageHeader(write(bytes)).horizontalDpi, 762.0);
        bytes[13] = 0; // A proportion, no density.
        QCOMPARE(readImageHeader(write(bytes)).horizontalDpi, 72.0);
    }

    void exifGivesOrientationAndDensity_data() {
        QTest::addColumn<int>("stated");
        QTest::addColumn<int>("meant");
        for (int i = 1; i <= 8; ++i) {
            QTest::newRow(qPrintable(QString::number(i))) << i << i;
        }
        QTest::newRow("zero") << 0 << 1;
        QTest::newRow("nine") << 9 << 1;
        QTest::newRow("huge") << 65535 << 1;
    }

    void exifGivesOrientationAndDensity() {
        QFETCH(int, stated);
        QFETCH(int, meant);
        for (const bool littleEndian : {true, false}) {
            const QByteArray exif = segment(0xE1, exifBlock(stated, 240, littleEndian));
            const ImageHeader header = readImageHeader(write(photoWith(exif)));
            QCOMPARE(header.orientation, meant);
            QCOMPARE(header.horizontalDpi, 240.0);
            QCOMPARE(header.verticalDpi, 240.0);
            QCOMPARE(header.width, 24); // Stored pixels, whatever way up.
        }
    }

    void exifDensityMayBePerCentimetre() {
        const QByteArray exif = segment(0xE1, exifBlock(1, 100, false, 3));
        QCOMPARE(readImageHeader(write(photoWith(exif))).horizontalDpi, 254.0);
        QCOMPARE(readImageHeader(write(photoWith(exif))).verticalDpi, 254.0);
    }

    void exifCountsWhereJfifStatesNoDensity() {
        QByteArray photo = bytesOf(imageFile(u"photo.jpg"_s));
        photo[13] = 1; // Per inch, but none.
        photo.replace(14, 4, QByteArray(4, '\0'));
        photo.insert(20, segment(0xE1, exifBlock(1, 240, false)));
        QCOMPARE(readImageHeader(write(photo)).horizontalDpi, 240.0);
        QCOMPARE(readImageHeader(write(photo)).verticalDpi, 240.0);
    }

    void profileInSeveralPartsIsJoined() {
        const QByteArray profile = profileFor("RGB ", 300);
        const QByteArray lead("ICC_PROFILE\0", 12);
        const QByteArray second = segment(0xE2, lead + "\2\2" + profile.mid(200));
        const QByteArray first = segment(0xE2, lead + "\1\2" + profile.first(200));
        QCOMPARE(toPdfImage(write(photoWith(second + first))).iccProfile, profile);
    }

    void profileOfAnotherColorIsDropped() {
        const QByteArray lead("ICC_PROFILE\0\1\1", 14);
        QVERIFY(toPdfImage(write(photoWith(segment(0xE2, lead + profileFor("GRAY", 200)))))
                    .iccProfile.isEmpty());
        QVERIFY(
            toPdfImage(write(photoWith(segment(0xE2, lead + "no profile")))).iccProfile.isEmpty());
    }

    void fillBytesBeforeAMarkerAreSkipped() {
        const QByteArray filled = photoWith(QByteArray(5, '\xFF'));
        QCOMPARE(readImageHeader(write(filled)).width, 24);
    }

    void fileCutBeforeItsPictureIsRefused() {
        const QByteArray photo = bytesOf(imageFile(u"photo.jpg"_s));
        for (const qsizetype length : {qsizetype(3), qsizetype(20), qsizetype(100)}) {
            QCOMPARE(refusalOf(write(photo.first(length))),
                     u"The JPEG file ends before its picture begins"_s);
        }
    }

    void losslessProcessIsRefused() {
        QByteArray photo = bytesOf(imageFile(u"photo.jpg"_s));
        photo[photo.indexOf("\xFF\xC0") + 1] = '\xC3';
        QVERIFY(refusalOf(write(photo)).contains(u"no PDF can hold"_s));
    }

    void componentsNamedForRgbAreRgb() {
        const auto named = [](QByteArray photo) {
            const qsizetype frame = photo.indexOf("\xFF\xC0");
            const qsizetype scan = photo.indexOf("\xFF\xDA");
            for (int i = 0; i < 3; ++i) {
                photo[frame + 10 + 3 * i] = "RGB"[i];
                photo[scan + 5 + 2 * i] = "RGB"[i];
            }
            return photo;
        };
        const QByteArray bare = photoWith({});
        QVERIFY(!toPdfImage(write(bare)).isPlainRgb);
        QVERIFY(toPdfImage(write(named(bare))).isPlainRgb);
        // JFIF says YCbCr whatever the names, and Adobe's mark says which of the two.
        QVERIFY(!toPdfImage(write(named(bytesOf(imageFile(u"photo.jpg"_s))))).isPlainRgb);
        const QByteArray adobe = segment(0xEE, QByteArray("Adobe\0\x64\0\0\0\0\1", 12));
        QVERIFY(!toPdfImage(write(named(photoWith(adobe)))).isPlainRgb);
    }

  private:
    QTemporaryDir m_folder;

    QString write(const QByteArray &bytes) {
        return writeFile(m_folder.filePath(u"photo.jpg"_s), bytes);
    }

    /// The test photo with segments put in after its start, and its own JFIF segment left out.
    static QByteArray photoWith(const QByteArray &segments) {
        const QByteArray photo = bytesOf(imageFile(u"photo.jpg"_s));
        const qsizetype jfif = 2 + 2 + qFromBigEndian<quint16>(photo.constData() + 4);
        return photo.first(2) + segments + photo.mid(jfif);
    }
};

FOLIOFORGE_TEST(JpegTest)
#include "JpegTest.moc"
