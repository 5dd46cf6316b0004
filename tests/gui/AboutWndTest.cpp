// SPDX-License-Identifier: Apache-2.0

#include "app/AboutWndCtrl.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

QString realBundle() {
    return test::bundlePath();
}

/// A bundle whose property list names its icon `icon`, with the real icon under `file`.
struct Bundle {
    Bundle(const QByteArray &icon, const QString &file) {
        const QString resources = folder.filePath(u"Contents/Resources"_s);
        if (!QDir().mkpath(resources) ||
            !QFile::copy(realBundle() + u"/Contents/Resources/Folioforge.icns"_s,
                         resources + u'/' + file)) {
            qFatal("cannot make the bundle");
        }
        QFile info(folder.filePath(u"Contents/Info.plist"_s));
        if (!info.open(QIODevice::WriteOnly)) {
            qFatal("cannot write the property list");
        }
        info.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
                   "<key>CFBundleIconFile</key><string>" +
                   icon + "</string></dict></plist>\n");
    }
    QTemporaryDir folder;
};

QPixmap shownIcon(const AboutWndCtrl &about) {
    return about.window().findChild<QLabel *>(u"m_imageView"_s)->pixmap();
}

} // namespace

class AboutWndTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theApplicationsOwnIconIsShown() {
        const AboutWndCtrl about(realBundle());
        QVERIFY(about.image().width() >= 512);
        QCOMPARE(shownIcon(about).deviceIndependentSize(), QSizeF(128, 128));
    }

    void theIconIsTheOneThePropertyListNames() {
        const Bundle bundle("Other", u"Other.icns"_s);
        QVERIFY(!AboutWndCtrl(bundle.folder.path()).image().isNull());
    }

    void aNameThatHasTheExtensionAlreadyDoesNotLoad() {
        const Bundle bundle("Other.icns", u"Other.icns"_s);
        const AboutWndCtrl about(bundle.folder.path());
        QVERIFY(about.image().isNull());
        QVERIFY(shownIcon(about).isNull());
    }

    void aMissingBundleLeavesTheIconBlank() {
        const AboutWndCtrl about(u"/nowhere"_s);
        QVERIFY(about.image().isNull());
        QVERIFY(shownIcon(about).isNull());
    }

    void theVersionAndTheLicencesAreShown() {
        const AboutWndCtrl about(realBundle());
        QCOMPARE(about.window().findChild<QLabel *>(u"versionLabel"_s)->text(),
                 QStringLiteral("Version " FOLIOFORGE_VERSION));
        const QString licences = about.window().findChild<QPlainTextEdit *>()->toPlainText();
        for (const char *library : {"Qt 6", "qpdf", "HarfBuzz", "FreeType", "fontconfig",
                                    "libjpeg-turbo", "LibTIFF", "OpenJPEG", "OpenEXR", "libdeflate",
                                    "ICU", "giflib", "libwebp", "libheif", "libjxl", "jemalloc"}) {
            QVERIFY2(licences.contains(QLatin1StringView(library)), library);
        }
    }

    void escapeClosesTheWindow() {
        QWidget parent;
        AboutWndCtrl about(realBundle());
        about.showWindow(&parent);
        QVERIFY(about.window().isVisible());
        QTest::keyClick(&about.window(), Qt::Key_Escape);
        QVERIFY(!about.window().isVisible());
    }
};

FOLIOFORGE_TEST(AboutWndTest)
#include "AboutWndTest.moc"
