// SPDX-License-Identifier: Apache-2.0

#include "support/InstalledFonts.h"
#include "support/TestUnit.h"
#include "text/FontCascade.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

/// The file of a family that the system has.
QString fileOf(const QString &family) {
    return QFile::decodeName(findTextFonts({family}).front().path());
}

} // namespace

/// The font of text pages where the system has it. Opened once in a process, so it has a test of
/// its own.
class TextFontTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void arialUnicodeMsAtFourteenPointsComesBeforeEveryOtherFont() {
        const QString serif = fileOf(u"FreeSerif"_s);
        const QString sans = fileOf(u"Liberation Sans"_s);
        test::InstalledFonts fonts;
        fonts.add(serif, u"Arial Unicode MS"_s);
        fonts.add(sans, u"Liberation Sans"_s);
        const auto font = textFont();
        QCOMPARE(font->face(0).postScriptName(), QByteArray("FreeSerif"));
        QCOMPARE(font->face(1).postScriptName(), QByteArray("LiberationSans"));
        QCOMPARE(font->faceCount(), std::size_t{2});
        QCOMPARE(font->size(), 14.0);
    }
};

FOLIOFORGE_TEST(TextFontTest)
#include "TextFontTest.moc"
