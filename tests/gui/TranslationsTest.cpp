// SPDX-License-Identifier: Apache-2.0

#include "CutTexts.h"
#include "Drops.h"
#include "ForeignWindow.h"
#include "OffscreenScreen.h"
#include "TranslationFile.h"
#include "support/TestUnit.h"

#include "convert/Run.h"
#include "mainwnd/FilesArray.h"
#include "mainwnd/RunAnswer.h"
#include "skin/SkinButton.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QHeaderView>
#include <QHelpEvent>
#include <QSet>
#include <QTableView>
#include <QTextDocumentFragment>
#include <QToolTip>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// The mnemonics that more than one of `texts` has.
QStringList sharedMnemonics(const QStringList &texts) {
    QStringList shared;
    QSet<QString> seen;
    for (const QString &text : texts) {
        const QString mnemonic = mnemonicOf(text);
        if (!mnemonic.isEmpty() && seen.contains(mnemonic)) {
            shared += text;
        }
        seen += mnemonic;
    }
    return shared;
}

QStringList textsOf(const QList<QAction *> &actions) {
    QStringList texts;
    for (const QAction *action : actions) {
        texts += action->text();
    }
    return texts;
}

/// The tool tip of the name of an entry, as it is shown under the mouse.
QString tipUnderTheMouse(const QTableView &list, int row) {
    const QModelIndex name = list.model()->index(row, FilesArray::NameColumn);
    const QPoint at = list.visualRect(name).center();
    QHelpEvent rest(QEvent::ToolTip, at, list.viewport()->mapToGlobal(at));
    QApplication::sendEvent(list.viewport(), &rest);
    return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
}

/// What a run says that has made so many PDFs and failed with one.
QString answerTo(int pdfs) {
    RunAnswer answer;
    RunSummary summary;
    summary.madePDFs = pdfs;
    summary.failedPDFs = 1;
    answer.show(summary);
    return answer.text();
}

} // namespace

/// The window speaks the language of its user.
class TranslationsTest : public QObject {
    Q_OBJECT

  public:
    static void initMain() { useScreenOf({1920, 1200}); }

  private Q_SLOTS:
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto); }

    void aWindowSpeaksTheLanguageOfItsUser_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("create");
        QTest::addColumn<QString>("size");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("en") << u"en-US"_s << u"Create"_s << u"Size"_s << Qt::LeftToRight;
        QTest::newRow("de") << u"de-AT"_s << u"Erstellen"_s << u"Größe"_s << Qt::LeftToRight;
        QTest::newRow("fr") << u"fr-CA"_s << u"Créer"_s << u"Taille"_s << Qt::LeftToRight;
        QTest::newRow("es") << u"es-MX"_s << u"Crear"_s << u"Tamaño"_s << Qt::LeftToRight;
        QTest::newRow("ja") << u"ja-JP"_s << u"作成"_s << u"サイズ"_s << Qt::LeftToRight;
        QTest::newRow("zh") << u"zh-CN"_s << u"创建"_s << u"大小"_s << Qt::LeftToRight;
        QTest::newRow("ar") << u"ar-EG"_s << u"إنشاء"_s << u"الحجم"_s << Qt::RightToLeft;
    }
    void aWindowSpeaksTheLanguageOfItsUser() {
        QFETCH(const QString, language);
        ForeignWindow w(language);
        QTEST(w.control<QAbstractButton>("m_btnCreate").text(), "create");
        QTEST(w.control<QTableView>("m_tableview")
                  .model()
                  ->headerData(FilesArray::SizeColumn, Qt::Horizontal)
                  .toString(),
              "size");
        QTEST(w.window().layoutDirection(), "direction");
        w.application->addTexts(1);
        const QString state = w.application->delegate.mainWndCtrl()
                                  .filesArray()
                                  .index(0, FilesArray::DestinationColumn)
                                  .data()
                                  .toString();
        QCOMPARE(state == u"Waiting..."_s, language == u"en-US"_s);
    }

    void reasonsAndWarningsAreInTheLanguageOfTheWindow() {
        ForeignWindow w(u"de"_s);
        const WindowWorld &world = w.application->world;
        const auto &list = w.control<QTableView>("m_tableview");
        const QString refused = world.file(u"refused.png"_s, "no picture");
        const QString letter = world.file(u"letter.txt"_s, "caf\xE9");
        QVERIFY(dropFiles(list, {refused, letter}, -1));
        QCOMPARE(tipUnderTheMouse(list, 0), refused + u"\nDie PNG-Datei enthält kein Bild."_s);
        const QString notUtf8 =
            letter + u"\nDer Text ist kein gültiges UTF-8; seine Seite bleibt leer."_s;
        QCOMPARE(tipUnderTheMouse(list, 1), notUtf8);

        QVERIFY(QFile::remove(refused)); // What the run says is made on a thread of its own.
        QTest::mouseClick(&w.control<QAbstractButton>("m_btnCreate"), Qt::LeftButton);
        const QString gone = refused + u"\nDie Datei kann nicht geöffnet werden: "_s;
        const auto isSaid = [&] { return tipUnderTheMouse(list, 0).startsWith(gone); };
        constexpr int kLongPatience = 60'000; // Milliseconds, on a busy machine.
        QVERIFY2(QTest::qWaitFor(isSaid, kLongPatience), qPrintable(tipUnderTheMouse(list, 0)));
        QCOMPARE(tipUnderTheMouse(list, 1), notUtf8);
    }

    void theFirstLanguageThatTheUserReadsIsTaken_data() {
        QTest::addColumn<QStringList>("read");
        QTest::addColumn<QString>("spoken");
        QTest::newRow("English first") << QStringList{u"en-GB"_s, u"de-DE"_s} << QString();
        QTest::newRow("no such texts") << QStringList{u"sv-SE"_s, u"fr-FR"_s} << u"fr"_s;
        QTest::newRow("another script") << QStringList{u"zh-TW"_s, u"es-ES"_s} << u"es"_s;
        QTest::newRow("none at all") << QStringList{u"C"_s} << QString();
    }
    void theFirstLanguageThatTheUserReadsIsTaken() {
        QFETCH(const QStringList, read);
        const Translations translations(read, WindowWorld::realBundle());
        QTEST(translations.language(), "spoken");
    }

    void noMnemonicStandsTwice_data() { addLanguages(true); }
    void noMnemonicStandsTwice() {
        QFETCH(const QString, language);
        ForeignWindow w(language);
        const QMenuBar &bar = *w.window().menuBar();
        for (const QMenu *menu : bar.findChildren<QMenu *>()) {
            QCOMPARE(sharedMnemonics(textsOf(menu->actions())), QStringList());
        }
        for (const char *settings :
             {"m_btnImageSetting", "m_btnTxtSetting", "m_btnSecuritySetting"}) {
            QTest::mouseClick(&w.control<QWidget>(settings), Qt::LeftButton);
            const auto &panel = w.control<QWidget>("optionsPanel");
            const auto isShown = [&](const QWidget &widget) {
                return widget.isVisible() || widget.isVisibleTo(&panel);
            };
            QStringList inSight = textsOf(bar.actions());
            for (const auto *label : w.window().findChildren<QLabel *>()) {
                inSight += isShown(*label) && label->buddy() ? label->text() : QString();
            }
            for (const auto *box : w.window().findChildren<QCheckBox *>()) {
                inSight += isShown(*box) ? box->text() : QString();
            }
            QCOMPARE(sharedMnemonics(inSight), QStringList());
        }
    }

    void noTextIsCut_data() { addLanguages(true); }
    void noTextIsCut() {
        QFETCH(const QString, language);
        ForeignWindow w(language);
        w.openPanel();
        w.window().resize(w.window().minimumSizeHint().expandedTo({0, 760}));
        for (const char *settings :
             {"m_btnImageSetting", "m_btnTxtSetting", "m_btnSecuritySetting"}) {
            QTest::mouseClick(&w.control<QWidget>(settings), Qt::LeftButton);
            QCoreApplication::processEvents();
            QCOMPARE(cutTexts(w.window()), QStringList());
        }
        for (const auto *list : w.window().findChildren<QComboBox *>()) {
            QVERIFY(list->width() >= list->sizeHint().width());
        }
        QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
        font.setPixelSize(13);
        const QHeaderView &header = *w.control<QTableView>("m_tableview").horizontalHeader();
        for (int column = 0; column < header.count(); ++column) {
            const QString title = header.model()->headerData(column, Qt::Horizontal).toString();
            QVERIFY2(QFontMetrics(font).horizontalAdvance(title) <= header.sectionSize(column),
                     qPrintable(title));
        }
    }

    void skinsShowTheWordsOfTheirButtons() {
        const QSize create = ForeignWindow(u"en"_s).control<SkinButton>("m_btnCreate").size();
        const ForeignWindow english(u"en"_s);
        const QImage pdf =
            controlOf<SkinButton>(english.application->window(), "m_btnAddPDF").grab().toImage();
        const QImage image =
            controlOf<SkinButton>(english.application->window(), "m_btnAddImage").grab().toImage();
        ForeignWindow w(u"de"_s);
        QCOMPARE(create, QSize(150, 44));
        QCOMPARE(w.control<SkinButton>("m_btnAddPDF").grab().toImage(), pdf); // "PDF" is "PDF".
        QVERIFY(w.control<SkinButton>("m_btnAddImage").grab().toImage() != image);
        QVERIFY(w.control<SkinButton>("m_btnBrowse").width() > 96); // "Durchsuchen …"
        QCOMPARE(w.control<SkinButton>("m_btnSecuritySetting").size(), QSize(100, 32));
    }

    /// Of 1, 2, 5, 11 and 100 PDFs, and of no page.
    void pluralsAreRight_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QStringList>("made");
        QTest::addColumn<QString>("failed");
        QTest::addColumn<QString>("noPages");
        const auto add = [](const char *language, const QStringList &made, const QString &failed,
                            const QString &noPages) {
            QTest::newRow(language) << QString::fromLatin1(language) << made << failed << noPages;
        };
        add("en",
            {u"1 PDF made"_s, u"2 PDFs made"_s, u"5 PDFs made"_s, u"11 PDFs made"_s,
             u"100 PDFs made"_s},
            u", 1 could not be"_s, u"0 pages"_s);
        add("de",
            {u"1 PDF erstellt"_s, u"2 PDFs erstellt"_s, u"5 PDFs erstellt"_s, u"11 PDFs erstellt"_s,
             u"100 PDFs erstellt"_s},
            u", 1 konnte nicht erstellt werden"_s, u"0 Seiten"_s);
        add("es",
            {u"1 PDF creado"_s, u"2 PDF creados"_s, u"5 PDF creados"_s, u"11 PDF creados"_s,
             u"100 PDF creados"_s},
            u", 1 no se pudo crear"_s, u"0 páginas"_s);
        add("fr",
            {u"1 PDF créé"_s, u"2 PDF créés"_s, u"5 PDF créés"_s, u"11 PDF créés"_s,
             u"100 PDF créés"_s},
            u", 1 n’a pas pu l’être"_s, u"0 page"_s);
        add("ja",
            {u"PDF を 1 件作成しました"_s, u"PDF を 2 件作成しました"_s,
             u"PDF を 5 件作成しました"_s, u"PDF を 11 件作成しました"_s,
             u"PDF を 100 件作成しました"_s},
            u"、1 件は作成できませんでした"_s, u"0 ページ"_s);
        add("zh_CN",
            {u"已创建 1 个 PDF"_s, u"已创建 2 个 PDF"_s, u"已创建 5 个 PDF"_s,
             u"已创建 11 个 PDF"_s, u"已创建 100 个 PDF"_s},
            u"，1 个未能创建"_s, u"0 页"_s);
        add("ar",
            {u"أُنشئ ملف PDF واحد"_s, u"أُنشئ ملفا PDF"_s, u"أُنشئت 5 ملفات PDF"_s,
             u"أُنشئ 11 ملف PDF"_s, u"أُنشئ 100 ملف PDF"_s},
            u"، تعذّر إنشاء واحد"_s, u"0 صفحة"_s);
    }
    void pluralsAreRight() {
        QFETCH(const QString, language);
        QFETCH(const QString, failed);
        QFETCH(const QStringList, made);
        const Translations translations({language}, WindowWorld::realBundle());
        const QList<int> counts{1, 2, 5, 11, 100};
        for (qsizetype i = 0; i < counts.size(); ++i) {
            QCOMPARE(answerTo(counts[i]), made[i] + failed);
        }
        QTEST(QCoreApplication::translate("EntryCells", "%n pages", nullptr, 0), "noPages");
    }
};

FOLIOFORGE_TEST(TranslationsTest)

#include "TranslationsTest.moc"
