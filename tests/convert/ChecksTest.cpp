// SPDX-License-Identifier: Apache-2.0

#include "convert/Checks.h"

#include "support/Files.h"
#include "support/Rights.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

const QString kNoUserPassword = u"Please input user password."_s;
const QString kNoOwnerPassword = u"Please input owner password."_s;
const QString kSamePasswords = u"The passwords can not be the same."_s;

QString messageOf(const std::optional<Notice> &result) {
    return result ? result->message : QString();
}

std::optional<Notice> firstFault(const ConversionOptions &options) {
    const std::vector<Notice> faults = faultsOf(options);
    return faults.empty() ? std::nullopt : std::optional(faults.front());
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
    void goodSettingsPass() { QVERIFY(!firstFault(goodOptions())); }

    void noticesBearTheUsualTitle() { QCOMPARE(firstFault(hopelessOptions())->title, u"Notice"_s); }

    void theFirstFaultIsTheOneReported() {
        ConversionOptions options = hopelessOptions();
        QCOMPARE(messageOf(firstFault(options)),
                 u"Please select an output folder to store the output documents."_s);
        options.outputFolder = m_folder.filePath(u"missing"_s);
        const QString noFolder = u"Selected output folder does not exist or is not writable."_s;
        QCOMPARE(messageOf(firstFault(options)), noFolder);
        options.outputFolder = test::writeFile(m_folder.filePath(u"file"_s), "x");
        QCOMPARE(messageOf(firstFault(options)), noFolder);
        options.outputFolder = m_folder.path();
        QCOMPARE(messageOf(firstFault(options)), u"Please input user password."_s);
        options.security.userPassword = u"secret"_s;
        QCOMPARE(messageOf(firstFault(options)),
                 u"Invalid page margin value in text output setting."_s);
        options.textPage.margins.top = 72;
        QCOMPARE(messageOf(firstFault(options)),
                 u"Invalid page margin value in image output setting."_s);
        options.imagePage.margins.left = 0;
        QCOMPARE(messageOf(firstFault(options)), u"Please input output file name."_s);
        options.outputName = u"taken"_s;
        test::writeFile(m_folder.filePath(u"taken.pdf"_s), "x");
        QCOMPARE(messageOf(firstFault(options)),
                 u"File name already exists in output folder, please input another "
                 "name."_s);
        options.outputName = u"free"_s;
        QCOMPARE(messageOf(firstFault(options)), QString());
    }

    void whatToClickIsSaidInTheWindowAlone() {
        const Notice notice = checkOutputFolder(m_folder.filePath(u"missing"_s)).value();
        QVERIFY(!notice.message.contains(u"Click"_s));
        QCOMPARE(notice.textInWindow(),
                 u"Selected output folder does not exist or is not writable. "
                 "Click \"OK\" to select another folder."_s);
        QCOMPARE(folderNotWritableNotice().textInWindow(),
                 u"Selected output folder is not writable. "
                 "Click \"OK\" to select another folder."_s);
    }

    void aFolderThatMayNotBeWrittenToIsRefused() {
        const QDir folder(m_folder.path());
        QVERIFY(folder.mkdir(u"read-only"_s));
        ConversionOptions options = goodOptions();
        options.outputFolder = folder.filePath(u"read-only"_s);
        QVERIFY(QFile::setPermissions(options.outputFolder, QFile::ReadOwner | QFile::ExeOwner));
        QString message;
        test::withoutRightsOfRoot([&] { message = messageOf(firstFault(options)); });
        QVERIFY2(message.contains(u"not writable"_s), qPrintable(message));
    }

    void textsThatAreEmptyButNotAbsentAreAskedFor() {
        ConversionOptions options = goodOptions();
        options.security.useOwnerPassword = true;
        options.security.ownerPassword = u""_s;
        QCOMPARE(messageOf(firstFault(options)), u"Please input owner password."_s);
        options.security = {};
        options.merge = true;
        options.outputName = u""_s;
        QCOMPARE(messageOf(firstFault(options)), u"Please input output file name."_s);
    }

    void aNameThatMeansAFolderIsNone() {
        ConversionOptions options = goodOptions();
        options.merge = true;
        for (const QString &name : {u"."_s, u".."_s}) {
            options.outputName = name;
            QCOMPARE(messageOf(firstFault(options)), u"Please input output file name."_s);
        }
        options.outputName = u"..."_s;
        QVERIFY(!firstFault(options));
    }

    void singleModeAsksForNoName() {
        ConversionOptions options = goodOptions();
        options.outputName.clear();
        QVERIFY(!firstFault(options));
    }

    void anEmptyUserPasswordIsReportedFirst() {
        QCOMPARE(messageOf(checkSecuritySettings({true, QString(), true, QString(), false, false})),
                 kNoUserPassword);
    }

    void anEmptyOwnerPasswordIsRefused() {
        QCOMPARE(
            messageOf(checkSecuritySettings({false, QString(), true, QString(), false, false})),
            kNoOwnerPassword);
    }

    void equalPasswordsAreRefusedByCase() {
        const QString lower = u"abc"_s;
        QCOMPARE(messageOf(checkSecuritySettings({true, lower, true, lower, false, false})),
                 kSamePasswords);
        QCOMPARE(
            messageOf(checkSecuritySettings({true, lower, true, lower.toUpper(), false, false})),
            QString());
    }

    void aUserPasswordThatIsOffIsNotCompared() {
        const QString same = u"abc"_s;
        QCOMPARE(messageOf(checkSecuritySettings({false, same, true, same, false, false})),
                 QString());
    }

    void aPasswordThatNoDocumentCanHoldIsRefused() {
        ConversionOptions options = goodOptions();
        options.textPage.margins.top = 300;
        options.security.useOwnerPassword = true;
        options.security.ownerPassword = QString(128, u'x');
        QCOMPARE(messageOf(firstFault(options)), u"The password is longer than 127 bytes."_s);
        options.security.useUserPassword = true;
        options.security.userPassword = u"a\tb"_s;
        QVERIFY(messageOf(firstFault(options)).startsWith(u"The password"_s));
    }

    void passwordsThatBecomeOneInTheDocumentAreTheSame_data() {
        QTest::addColumn<QString>("user");
        QTest::addColumn<QString>("owner");
        QTest::newRow("composed and decomposed") << u"caf\u00E9"_s << u"cafe\u0301"_s;
        QTest::newRow("with a soft hyphen") << u"sec\u00ADret"_s << u"secret"_s;
    }
    void passwordsThatBecomeOneInTheDocumentAreTheSame() {
        QFETCH(const QString, user);
        QFETCH(const QString, owner);
        ConversionOptions options = goodOptions();
        options.security = {true, user, true, owner, false, false};
        QCOMPARE(messageOf(firstFault(options)), kSamePasswords);
    }

    void passwordsThatStayTwoPass() {
        ConversionOptions options = goodOptions();
        options.security = {true, u"abc"_s, true, u"ABC"_s, false, false};
        QVERIFY(!firstFault(options));
    }

    void anUnusedPasswordIsNotLookedAt() {
        ConversionOptions options = goodOptions();
        options.security.ownerPassword = QString(500, u'x');
        QVERIFY(!firstFault(options));
    }
};

FOLIOFORGE_TEST(ChecksTest)
#include "ChecksTest.moc"
