// SPDX-License-Identifier: Apache-2.0

#include "filelist/PDFFileInfo.h"

#include "support/InstalledFonts.h"
#include "support/TestUnit.h"
#include "text/FontCatalog.h"

#include <QFile>
#include <QTest>

#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

// Advances of Liberation Sans in units of 2048 to the em, which are those of Arial.
constexpr double kUnitsPerEm = 2048;
constexpr int kUnitsOfW = 1933;
constexpr int kUnitsOfI = 455;

/// The file of a family that the system has.
QString fileOf(const QString &family) {
    return QFile::decodeName(findTextFonts({family}).front().path());
}

/// What the list shows of a finished entry whose document is named `name`.
QString linkOf(const QString &name) {
    PDFFileInfo entry;
    entry.setDestFilePathName(u"/out/"_s + name);
    entry.setStateIndex(FinishedAsLink);
    return entry.state()->text;
}

} // namespace

/// How wide names are in Lucida Grande at 11 points, for which Liberation Sans poses here. The font
/// is opened once in a process, so these have a test of their own.
class NameWidthTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<test::InstalledFonts> m_fonts;

  private Q_SLOTS:
    void initTestCase() {
        const QString liberation = fileOf(u"Liberation Sans"_s);
        const QString dejaVu = fileOf(u"DejaVu Sans"_s);
        m_fonts = std::make_unique<test::InstalledFonts>();
        m_fonts->add(liberation, u"Lucida Grande"_s);
        m_fonts->add(dejaVu, u"DejaVu Sans"_s);
    }

    void widthsAreThoseOfLucidaGrandeAtElevenPointsCutToWholeOnes() {
        for (int count = 1; count <= 40; ++count) {
            QCOMPARE(PDFFileInfo::GetWidthOfName(QString(count, u'W')),
                     float(std::floor(count * kUnitsOfW * 11 / kUnitsPerEm)));
            QCOMPARE(PDFFileInfo::GetWidthOfName(QString(count, u'i')),
                     float(std::floor(count * kUnitsOfI * 11 / kUnitsPerEm)));
        }
    }

    void aCharacterBeyondTheBasicPlaneCountsOnce() {
        QCOMPARE(PDFFileInfo::GetWidthOfName(u"\U0001D4D0"_s.repeated(7)),
                 PDFFileInfo::GetWidthOfName(u"\uE000"_s.repeated(7)));
    }

    void aNameOfHundredPointsIsShownWhole() {
        const QString name = u"innnnnnnnnnnnn.pdf"_s; // 100.3 points
        QCOMPARE(PDFFileInfo::GetWidthOfName(name), 100.0F);
        QCOMPARE(linkOf(name), name);
    }

    void aNameOfHundredAndOnePointsIsShortened() {
        const QString name = u"nnnnnnnnnncccc.pdf"_s; // 101.5 points
        QCOMPARE(PDFFileInfo::GetWidthOfName(name), 101.0F);
        QCOMPARE(linkOf(name), u"nnnnnn...nncccc.pdf"_s);
    }

    void aNameLosesCharactersUntilItMeasuresHundredPoints() {
        // 104.0 points whole, 107.0 without one character and 100.9 without two.
        QCOMPARE(linkOf(u"nnnnnnnnnnnnnn.pdf"_s), u"nnnnnn...nnnnnn.pdf"_s);
    }
};

FOLIOFORGE_TEST(NameWidthTest)
#include "NameWidthTest.moc"
