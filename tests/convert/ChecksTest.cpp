#include "convert/Checks.h"

#include "support/Files.h"

#include <QTemporaryDir>
#include <QTest>

using namespace folioforge;

namespace {

QString messageOf(const std::optional<Notice> &result) {
    return result ? result->message : QString();
}

} // namespace

class ChecksTest : public QObject {
    Q_OBJECT

  private:
    QTemporaryDir m_folder;

    ConversionOptions goodOptions() const {
        ConversionOptions options;
        options.outputFolder = m_folder.path();
        return options;
    }

    /// Options in which everything is wrong that can be.
    ConversionOptions hopelessOptions() const {
        ConversionOptions options;
        options.merge = true;
        options.security.useUserPassword = true;
        options.textPage.margins.top = 300;
        options.imagePage.margins.left = -1;
        return options;
    }

  private Q_SLOTS:
    void goodSettingsPass() { QVERIFY(!checkConversion(goodOptions())); }

    void noticesBearTheUsualTitle() {
        QCOMPARE(checkConversion(hopelessOptions())->title, QStringLiteral("Notice"));
    }

    void theFirstFaultIsTheOneReported() {
        ConversionOptions options = hopelessOptions();
        QCOMPARE(messageOf(checkConversion(options)),
                 QStringLiteral("Please select an output folder to store the output documents."));
        options.outputFolder = m_folder.filePath(QStringLiteral("missing"));
        const QString noFolder =
            QStringLiteral("Selected output folder does not exist or is not writable. Click "
                           "\"OK\" to select another folder.");
        QCOMPARE(messageOf(checkConversion(options)), noFolder);
        options.outputFolder = test::writeFile(m_folder.filePath(QStringLiteral("file")), "x");
        QCOMPARE(messageOf(checkConversion(options)), noFolder);
        options.outputFolder = m_folder.path();
        QCOMPARE(messageOf(checkConversion(options)),
                 QStringLiteral("Please input user password."));
        options.security.userPassword = QStringLiteral("secret");
        QCOMPARE(messageOf(checkConversion(options)),
                 QStringLiteral("Invalid page margin value in text output setting."));
        options.textPage.margins.top = 72;
        QCOMPARE(messageOf(checkConversion(options)),
                 QStringLiteral("Invalid page margin value in image output setting."));
        options.imagePage.margins.left = 0;
        QCOMPARE(messageOf(checkConversion(options)),
                 QStringLiteral("Please input output file name."));
        options.outputName = QStringLiteral("taken");
        test::writeFile(m_folder.filePath(QStringLiteral("taken.pdf")), "x");
        QCOMPARE(messageOf(checkConversion(options)),
                 QStringLiteral("File name already exists in output folder, please input another "
                                "name."));
        options.outputName = QStringLiteral("free");
        QCOMPARE(messageOf(checkConversion(options)), QString());
    }

    void singleModeAsksForNoName() {
        ConversionOptions options = goodOptions();
        options.outputName.clear();
        QVERIFY(!checkConversion(options));
    }

    void aPasswordThatNoDocumentCanHoldIsRefused() {
        ConversionOptions options = goodOptions();
        options.textPage.margins.top = 300;
        options.security.useOwnerPassword = true;
        options.security.ownerPassword = QString(128, u'x');
        QVERIFY2(messageOf(checkConversion(options)).contains(QStringLiteral("127 bytes")),
                 qPrintable(messageOf(checkConversion(options))));
        options.security.useUserPassword = true;
        options.security.userPassword = QStringLiteral("a\tb");
        QVERIFY(messageOf(checkConversion(options)).startsWith(QStringLiteral("The password")));
    }

    void passwordsThatBecomeOneInTheDocumentAreTheSame_data() {
        QTest::addColumn<QString>("user");
        QTest::addColumn<QString>("owner");
        QTest::newRow("composed and decomposed")
            << QStringLiteral("caf\u00E9") << QStringLiteral("cafe\u0301");
        QTest::newRow("with a soft hyphen")
            << QStringLiteral("sec\u00ADret") << QStringLiteral("secret");
    }
    void passwordsThatBecomeOneInTheDocumentAreTheSame() {
        QFETCH(const QString, user);
        QFETCH(const QString, owner);
        ConversionOptions options = goodOptions();
        options.security = {true, user, true, owner, false, false};
        QCOMPARE(messageOf(checkConversion(options)),
                 QStringLiteral("The passwords can not be the same."));
    }

    void passwordsThatStayTwoPass() {
        ConversionOptions options = goodOptions();
        options.security = {true, QStringLiteral("abc"), true, QStringLiteral("ABC"), false, false};
        QVERIFY(!checkConversion(options));
    }

    void anUnusedPasswordIsNotLookedAt() {
        ConversionOptions options = goodOptions();
        options.security.ownerPassword = QString(500, u'x');
        QVERIFY(!checkConversion(options));
    }
};

QTEST_GUILESS_MAIN(ChecksTest)
#include "ChecksTest.moc"
