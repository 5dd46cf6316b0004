// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "convert/Run.h"
#include "files/ReadableLinks.h"
#include "files/TemporaryFolder.h"
#include "mainwnd/Notices.h"
#include "mainwnd/SkinTableView.h"
#include "mainwnd/WindowServices.h"
#include "text/FontCascade.h"
#include "ui_MainWnd.h"

#include <QMainWindow>

#include <functional>
#include <memory>
#include <optional>
#include <thread>

class QMenu;

namespace folioforge {

class FaultMark;
class FilesArray;
class ListHistory;
class OptionsSlide;
class Preview;
struct PreviewSubject;
class RunNews;
class WindowMemory;
struct FilePanel;
enum class FileKind;
enum class ListCommand;
enum class SortOrder;

/// Hears from the window whether the file list holds files.
class MainWndDelegate {
  public:
    MainWndDelegate() = default;
    MainWndDelegate(const MainWndDelegate &) = delete;
    MainWndDelegate &operator=(const MainWndDelegate &) = delete;
    virtual ~MainWndDelegate() = default;
    virtual void hasFileOpened(bool opened) = 0;
};

/// The document that the compression pass is rewriting.
struct PDFDocument {
    int pageCount = 0;
};

/// The controller of the one main window: owns the file list, the controls and the state of a run.
///
/// The controls (m_btn…, m_tf…, m_lb…, m_mtx… and the views) are the fields of Ui::MainWnd, made
/// from the layout file MainWnd.ui; they belong to the window. Each operation reads controls into a
/// plain record, calls the engine's function of the same words and shows the result. It is declared
/// here once and defined by topic: MainWndCtrl.cpp (life of the window), MainWndCtrlOptions.cpp
/// (options panel, output folder), MainWndCtrlFiles.cpp (how files come into the list),
/// MainWndCtrlEdit.cpp (what is done with the list), MainWndCtrlConvert.cpp (the steps of a run),
/// MainWndCtrlProgress.cpp (what shows how it goes), MainWndCtrlPreview.cpp (the pages of an
/// entry), MainWndCtrlFaults.cpp (notices and the fields that they speak of).
class MainWndCtrl : public QObject, public SkinTableViewDelegate, private Ui::MainWnd {
    Q_OBJECT

  public:
    // ---- Life of the window (MainWndCtrl.cpp) ------------------------------------------------

    /// Keeps what it is handed; the window is loaded on the first call of window().
    explicit MainWndCtrl(WindowServices services);
    ~MainWndCtrl() override;

    /// The main window, loaded on the first call.
    QMainWindow *window();
    /// Who hears whether the list holds files; not owned.
    void setDelegateObject(MainWndDelegate *delegate);
    /// Whether a run is going on, during which the list must not change.
    [[nodiscard]] bool isConverting() const { return m_bConverting; }

    /// Skins `button` with the images `name`, `name`-hover and `name`-disable among the
    /// application's resources; a missing one of the latter two gives way to the first. Images are
    /// looked up by name alone, so `folder` plays no part.
    void skinButton(const QString &folder, const QString &name, SkinButton *button) const;

    // ---- Options panel and output folder (MainWndCtrlOptions.cpp) ----------------------------

    void clickBtnExpand();
    void clickBtnElapse();
    void clickBtnTextPageSize();
    void clickBtnImagePageSize();
    void clickBtnSecurity();
    /// Does nothing, on purpose: settings hold from the moment they are entered.
    void clickBtnSave() {}
    /// Enables the document properties and security controls; those of a password only while its
    /// box is ticked.
    void EnableSettings(bool enable);

    void clickMtxTextPageSize();
    void clickMtxImagePageSize();
    void clickBtnMerge();
    void clickBtnCheckUserPassword();
    void clickBtnCheckOwnerPassword();

    /// The checks of a run. Each shows its notice and answers no where the settings are invalid.
    bool checkTextPageSizeSettings();
    bool checkImagePageSizeSettings();
    bool checkSecuritySettings();

    void clickBtnBrowse();
    void showInvalidOutputPathWarning();
    void endShowInvalidOutputFolder();
    void clickBtnOpen();
    /// Opens the PDF of the entry at `row` when it is finished as a link.
    void clickedDest(int row) override;

    // ---- File list (MainWndCtrlFiles.cpp) ----------------------------------------------------

    void clickBtnAddFile();
    void clickBtnAddFolder();
    void clickBtnAddImage();
    void clickBtnAddTxt();
    void clickBtnAddPDF();
    /// Makes entries of `paths` and puts them in at `row`, or at the end where `row` is negative.
    void addFiles(const QStringList &paths, int row);
    void reindexFiles();
    void hasFileOpened(bool opened);
    void showBadFiles(const QStringList &paths);
    bool acceptDrop(const QMimeData &data, int row) override;
    /// Puts those of `paths` that are files of a kind for the list in at `row`, or at the end where
    /// `row` is negative; the others, and all while the list cannot be edited, are returned.
    QByteArrayList addDropped(const QByteArrayList &paths, int row);

    // ---- Editing the list (MainWndCtrlEdit.cpp) ----------------------------------------------

    void clickBtnRemove();
    void clickBtnClear();
    [[nodiscard]] bool canEditList() const override;
    [[nodiscard]] bool canRemoveClear() const override;
    [[nodiscard]] bool canResort() const override;
    [[nodiscard]] bool canMoveUp() const override;
    [[nodiscard]] bool canMoveDown() const override;
    void clickMenuRemove() override;
    void clickMenuClear() override;
    void clickMenuResortByName() override;
    void clickMenuResortBySize() override;
    void clickMenuResortByDataCreated() override;
    void clickMenuResortByDataModified() override;
    void clickMenuMoveUp() override;
    void clickMenuMoveDown() override;
    /// Takes the last change of the list back, or does again what was taken back last.
    void undo();
    void redo();
    /// Puts Undo, Redo and the commands of the list into `menu`.
    void fillEditMenu(QMenu &menu);

    // ---- Runs (MainWndCtrlConvert.cpp) -------------------------------------------------------

    void clickBtnCreate();
    /// Begins the PDF of the entry at m_fileIndex, in merge mode of every entry.
    void createSingleFile();
    /// Writes that PDF to m_destFilePathName on a worker thread.
    void createPDF();
    /// Rewrites the finished PDF at `path` on a worker thread, where the run asks for it.
    void compress(const QString &path);
    /// Puts the file of the pass in place and goes on to the next entry, or ends the run. Nothing
    /// happens while a file is being written.
    void compressCompleted();
    /// A page of the compressed file is written; `pageIndex` counts from 0.
    void endPageWrite(int pageIndex);
    void showAlertView();
    void hideAlertView();

    // ---- Preview (MainWndCtrlPreview.cpp) ----------------------------------------------------

    /// Whether this build has the program that draws pages.
    [[nodiscard]] bool canShowPages() const;
    /// Shows the pages of the selected entry beside the list, or hides them.
    void togglePreview();

    // ---- Kept for callers alone: nothing in the program calls these --------------------------

    /// Does nothing, on purpose: a sheet blocks the window by itself.
    void windowWillBeginSheet() {}
    /// Does nothing, on purpose: a sheet gives the window free by itself.
    void windowDidEndSheet() {}
    /// Page sizes in points, as the controls stand now; a run asks the functions of these names.
    [[nodiscard]] QSizeF getTextPageSize() const;
    [[nodiscard]] QSizeF getImagePageSize() const;
    [[nodiscard]] const FilesArray &filesArray() const { return *m_filesArray; }

  Q_SIGNALS:
    void previewShown(bool shown);

  private:
    // Life of the window.
    void loadWindow();
    void fitLargeTexts();
    void restoreWindow();
    void keepWindow();
    void awakeFromNib();
    void windowDidLoad();
    void initCtrl();
    void initFields();
    void initList();
    [[nodiscard]] QString resourcesFolder() const;
    void connectControls();
    void connectAnswer();
    void observeNotifications();

    // Notices and what they speak of (MainWndCtrlFaults.cpp).
    void showNotice(const Notice &notice);
    bool passes(const std::optional<Notice> &problem);
    [[nodiscard]] QLineEdit *fieldOf(Setting setting) const;
    [[nodiscard]] bool hasFault(const QLineEdit &field) const;
    void connectFaults();
    void reviewFault();
    void showField(QLineEdit &field);
    void showOptionsAtOnce();

    // Options panel and output folder.
    void offerToHideOptions();
    static void exchangeButtons(SkinButton *pressed, SkinButton *other);
    void showSettingsView(QWidget *view);
    void markSettingsButton(const QWidget *view);
    [[nodiscard]] PageSetup textPageSetup() const;
    [[nodiscard]] PageSetup imagePageSetup() const;
    [[nodiscard]] SecuritySettings securitySettings() const;
    [[nodiscard]] ConversionOptions conversionOptions() const;
    [[nodiscard]] ConversionOptions runOptions();
    void readOutputFolder();
    [[nodiscard]] QString makeDefaultOutputFolder() const;
    void outputFolderChosen(const QStringList &paths);

    // File list.
    [[nodiscard]] QString documentsFolder() const;
    void showAddPanel(const QString &name, FilePanel panel, Notices::Chosen chosen);
    void addFromPanel(const QString &name, const FilePanel &panel);
    void addKindFromPanel(const QString &name, const QString &title, FileKind kind);
    void insertEntries(std::vector<PDFFileInfo> entries, int row);

    // Editing the list.
    void connectHistory();
    void remove(ListCommand command, std::vector<int> rows);
    void resort(ListCommand command, SortOrder order);
    void exchangeWithRow(ListCommand command, int row);
    void goThroughHistory(QString (ListHistory::*step)(const QString &));

    // Preview.
    void makePreview();
    void connectPreview();
    void showPreview(bool shown);
    [[nodiscard]] int previewRow() const;
    [[nodiscard]] PreviewSubject previewSubject();

    // Runs.
    class WorkerObserver;
    bool checkSettings(const ConversionOptions &options);
    void showFileBeingWritten();
    void showRunProgress();
    void showProgress(float value);
    void entryDone(int row, bool written);
    void PDFCreated(const PDFOutcome &outcome);
    void showRemarks(const PDFOutcome &outcome);
    void showFailures();
    void setConverting(bool converting);
    void endRun();
    void startWorker(std::function<void(ConversionObserver &)> work);
    /// Queues `work` without waiting; it is dropped when the controller goes first.
    template<typename Work> void runOnMainThread(Work work) {
        QMetaObject::invokeMethod(this, std::move(work), Qt::QueuedConnection);
    }

    WindowServices m_services;
    std::unique_ptr<WindowMemory> m_memory;
    std::unique_ptr<RunNews> m_news;
    std::unique_ptr<QMainWindow> m_window;
    MainWndDelegate *m_delegate = nullptr;
    std::unique_ptr<FilesArray> m_filesArray;
    std::unique_ptr<ListHistory> m_history; ///< All changes of the list go through it.
    std::unique_ptr<FaultMark> m_faultMark;

    QWidget *m_currentSettingsView = nullptr;
    std::unique_ptr<OptionsSlide> m_optionsSlide;
    std::unique_ptr<Preview> m_preview; ///< Made when it is first shown.
    QString m_outputFolderPath;

    QString m_destFilePathName; ///< The PDF being written.
    QString m_fontName = QStringLiteral("Arial Unicode MS");
    int m_fontSize = 14; ///< Points.
    QByteArray m_cffontRef;
    std::shared_ptr<const FontCascade> m_ctFont; ///< Of text pages, from the first run on.
    std::optional<PDFDocument> m_pdfDoc;
    bool m_bConverting = false;
    std::optional<ConvertInfo> m_convertInfoDict;
    int m_fileIndex = 0;      ///< The entry being converted.
    float m_pdfProgress = 0;  ///< Of the PDF that is being made, as the bar of the foot shows it.
    int m_filesAdded = 0;     ///< To the PDF that is being made.
    std::optional<Run> m_run; ///< The entries and options as they stood when the run began.
    std::stop_source m_stop;  ///< Stops the run.
    bool m_bWorking = false;  ///< The worker has not yet handed over what it makes.
    TemporaryFolder m_temporaryFolder;
    ReadableLinks m_readableLinks{m_temporaryFolder};
    std::jthread m_worker; ///< The last member: it ends before anything else goes.
};

} // namespace folioforge
