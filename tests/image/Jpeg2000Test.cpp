#include "DecodedImage.h"

#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

using namespace folioforge;
using namespace folioforge::test;

class Jpeg2000Test : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void resolutionBoxIsPixelsAMetre();
    void shownResolutionCountsMoreThanCaptured();
    void boxesInBoxesWithoutEndAreNoPicture();

  private:
    QTemporaryDir m_folder;

    /// The test picture with this box at the end of its header.
    QString withHeaderBox(const QByteArray &box);
};

namespace {

QByteArray box(const char *type, const QByteArray &content) {
    QByteArray length(4, '\0');
    qToBigEndian(quint32(content.size() + 8), length.data());
    return length + type + content;
}

} // namespace

QString Jpeg2000Test::withHeaderBox(const QByteArray &box) {
    QByteArray bytes = bytesOf(imageFile(QStringLiteral("colour.jp2")));
    const qsizetype header = bytes.indexOf("jp2h") - 4;
    const auto length = qFromBigEndian<quint32>(bytes.constData() + header);
    bytes.insert(header + length, box);
    qToBigEndian(length + quint32(box.size()), bytes.data() + header);
    return writeFile(m_folder.filePath(QStringLiteral("picture.jp2")), bytes);
}

void Jpeg2000Test::resolutionBoxIsPixelsAMetre() {
    // Vertical 5000 / 1 * 10^0, horizontal 1 / 1 * 10^4: 127 and 254 per inch.
    const QByteArray numbers = QByteArray::fromHex("13880001"
                                                   "00010001"
                                                   "00"
                                                   "04");
    const ImageHeader header = readImageHeader(withHeaderBox(box("res ", box("resd", numbers))));
    QCOMPARE(header.verticalDpi, 127.0);
    QCOMPARE(header.horizontalDpi, 254.0);
}

void Jpeg2000Test::shownResolutionCountsMoreThanCaptured() {
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

void Jpeg2000Test::boxesInBoxesWithoutEndAreNoPicture() {
    QByteArray bytes = bytesOf(imageFile(QStringLiteral("colour.jp2"))).first(12);
    constexpr int kBoxes = 100'000;
    for (int i = kBoxes; i > 0; --i) {
        QByteArray length(4, '\0');
        qToBigEndian(quint32(8 * i), length.data());
        bytes += length + "jp2h";
    }
    QCOMPARE(refusalOf(writeFile(m_folder.filePath(QStringLiteral("deep.jp2")), bytes)),
             QStringLiteral("The JPEG 2000 file holds no picture"));
}

QTEST_GUILESS_MAIN(Jpeg2000Test)
#include "Jpeg2000Test.moc"
