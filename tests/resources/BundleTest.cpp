// SPDX-License-Identifier: Apache-2.0

#include "support/Places.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

const QString kContents = folioforge::test::bundlePath() + u"/Contents"_s;
const QString kResources = kContents + u"/Resources"_s;
const QString kPages = kResources + u"/pages"_s;

QByteArray contentsOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The string that follows `key` in a property list; empty where there is none.
QString stringOf(const QString &key) {
    QXmlStreamReader xml(contentsOf(kContents + u"/Info.plist"_s));
    bool found = false;
    while (!xml.atEnd()) {
        if (!xml.readNextStartElement()) {
            continue;
        }
        if (xml.name() == u"key") {
            found = xml.readElementText() == key;
        } else if (found) {
            return xml.name() == u"string" ? xml.readElementText() : QString();
        }
    }
    return {};
}

/// What the links, styles and pictures of a page point to.
QStringList targetsOf(const QString &page) {
    static const QRegularExpression kTarget(u"(?:href|src)=\"([^\"]*)\""_s);
    QStringList targets;
    auto match = kTarget.globalMatch(QString::fromUtf8(contentsOf(page)));
    while (match.hasNext()) {
        targets.append(match.next().captured(1));
    }
    return targets;
}

} // namespace

class BundleTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void eachSkinHasThreeLooksOfOneSize_data() {
        QTest::addColumn<QSize>("size");
        QTest::newRow("add-image") << QSize(92, 40);
        QTest::newRow("add-txt") << QSize(82, 40);
        QTest::newRow("add-pdf") << QSize(82, 40);
        QTest::newRow("remove") << QSize(92, 40);
        QTest::newRow("convert") << QSize(150, 44);
        QTest::newRow("show-option") << QSize(36, 26);
        QTest::newRow("hide-option") << QSize(36, 26);
        QTest::newRow("open") << QSize(76, 28);
        QTest::newRow("browse") << QSize(96, 28);
        QTest::newRow("security-setting") << QSize(100, 32);
        QTest::newRow("image-setting") << QSize(100, 32);
        QTest::newRow("text-setting") << QSize(100, 32);
    }

    void eachSkinHasThreeLooksOfOneSize() {
        QFETCH(QSize, size);
        QList<QByteArray> looks;
        for (const auto *look : {"", "-hover", "-disable"}) {
            const auto file = u"%1/%2%3.svg"_s.arg(
                kResources, QLatin1StringView(QTest::currentDataTag()), QLatin1StringView(look));
            QVERIFY2(QSvgRenderer(file).isValid(), qPrintable(file));
            QCOMPARE(QSvgRenderer(file).defaultSize(), size);
            looks.append(contentsOf(file));
        }
        QVERIFY(looks[0] != looks[1] && looks[1] != looks[2] && looks[2] != looks[0]);
    }

    void skinsNeedNoFont() {
        const auto skins = QDir(kResources).entryInfoList({u"*.svg"_s});
        QVERIFY(!skins.isEmpty());
        for (const auto &skin : skins) {
            QVERIFY2(!contentsOf(skin.filePath()).contains("<text"), qPrintable(skin.fileName()));
        }
    }

    void propertyListNamesAnIconWithoutItsExtension() {
        const auto icon = stringOf(u"CFBundleIconFile"_s);
        QCOMPARE(icon, u"Folioforge"_s);
        QVERIFY(QFileInfo::exists(u"%1/%2.icns"_s.arg(kResources, icon)));
    }

    void propertyListNamesTheProgram() {
        QCOMPARE(stringOf(u"CFBundleName"_s), u"Folioforge"_s);
        QCOMPARE(stringOf(u"CFBundleExecutable"_s), u"folioforge"_s);
        QCOMPARE(stringOf(u"CFBundlePackageType"_s), u"APPL"_s);
    }

    void iconIsReadInEverySize() {
        QImageReader reader(kResources + u"/Folioforge.icns"_s);
        QList<int> sizes;
        for (int i = 0; i < reader.imageCount(); ++i) {
            reader.jumpToImage(i);
            const auto image = reader.read();
            QVERIFY(image.hasAlphaChannel());
            QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
            QCOMPARE(qAlpha(image.pixel(image.rect().center())), 255);
            sizes.append(image.width());
        }
        QCOMPARE(sizes, QList<int>({512, 1024, 256, 128, 64, 32, 16}));
    }

    void filtersAreInPlace() {
        for (const auto *name : {"150m", "96m", "72l"}) {
            const auto file = u"%1/%2.qfilter"_s.arg(kResources, QLatin1StringView(name));
            QVERIFY2(QFileInfo(file).size() > 0, qPrintable(file));
        }
    }

    void pagesPointOnlyToWhatComesWithThem_data() {
        QTest::addColumn<QString>("page");
        QTest::newRow("tutorial") << kPages + u"/tutorial.html"_s;
        QTest::newRow("product") << kPages + u"/product.html"_s;
    }

    void pagesPointOnlyToWhatComesWithThem() {
        QFETCH(QString, page);
        const auto targets = targetsOf(page);
        QVERIFY(targets.size() > 4);
        for (const auto &target : targets) {
            const auto file = target.section(u'#', 0, 0);
            const auto anchor = target.section(u'#', 1);
            const auto path = file.isEmpty() ? page : kPages + u'/' + file;
            QVERIFY2(QFileInfo::exists(path), qPrintable(target));
            QVERIFY2(anchor.isEmpty() || contentsOf(path).contains("id=\"" + anchor.toUtf8() + '"'),
                     qPrintable(target));
        }
    }

    void productPageHasADownloadSection() {
        QVERIFY(contentsOf(kPages + u"/product.html"_s).contains("<h2 id=\"download\">"));
    }

    void thereIsAnExampleOfEachKindAndAllAreSmall() {
        QStringList kinds;
        qint64 bytes = 0;
        for (const auto &file :
             QDir(folioforge::test::inSource(u"examples"_s)).entryInfoList(QDir::Files)) {
            kinds.append(file.suffix());
            bytes += file.size();
        }
        kinds.removeDuplicates();
        kinds.sort();
        QCOMPARE(kinds.join(u' '), u"bmp exr gif icns ico jp2 jpg pdf png psd tga tif txt"_s);
        QVERIFY2(bytes < 400'000, qPrintable(QString::number(bytes)));
    }
};

FOLIOFORGE_TEST(BundleTest)
#include "BundleTest.moc"
