// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/MainWndCtrl.h"

#include "filelist/FileKind.h"
#include "mainwnd/ColumnWidths.h"
#include "mainwnd/Desktop.h"
#include "mainwnd/EmptyHint.h"
#include "mainwnd/EntryDelegate.h"
#include "mainwnd/FaultMark.h"
#include "mainwnd/FilesArray.h"
#include "mainwnd/LengthHint.h"
#include "mainwnd/ListHistory.h"
#include "mainwnd/Notices.h"
#include "mainwnd/NotificationCenter.h"
#include "mainwnd/OptionsSlide.h"
#include "mainwnd/RunNews.h"
#include "mainwnd/SmallScreen.h"
#include "mainwnd/WindowMemory.h"
#include "preview/Preview.h"
#include "skin/PasswordEye.h"
#include "skin/TextScale.h"
#include "skin/VesprinTableHeaderView.h"

#include <QGuiApplication>
#include <QScreen>

#include <array>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

constexpr int kHeaderHeight = 34;

/// Shrinks the window to the screen, so that it still fits with the options panel shown.
void fitIntoScreen(QMainWindow &window) {
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        window.resize(window.size().boundedTo(screen->availableSize()));
    }
}

} // namespace

MainWndCtrl::MainWndCtrl(WindowServices services)
    : m_services(std::move(services))
    , m_memory(std::make_unique<WindowMemory>(m_services.settings))
    , m_news(std::make_unique<RunNews>(m_services.desktop, m_services.longRun))
    , m_filesArray(std::make_unique<FilesArray>())
    , m_history(std::make_unique<ListHistory>(*m_filesArray))
    , m_faultMark(std::make_unique<FaultMark>()) {}

MainWndCtrl::~MainWndCtrl() {
    m_stop.request_stop();
    if (m_window) {
        keepWindow();
    }
}

QMainWindow *MainWndCtrl::window() {
    if (!m_window) {
        loadWindow();
    }
    return m_window.get();
}

void MainWndCtrl::setDelegateObject(MainWndDelegate *delegate) {
    m_delegate = delegate;
}

void MainWndCtrl::loadWindow() {
    m_window = std::make_unique<QMainWindow>();
    setupUi(m_window.get());
    m_tableview->setHorizontalHeader(new VesprinTableHeaderView(m_tableview));
    m_tableview->setModel(m_filesArray.get());
    m_tableview->setSelectionModel(m_filesArray->selectionModel());
    m_tableview->setTableDelegate(this);
    fitLargeTexts();
    restoreWindow();
    awakeFromNib();
    windowDidLoad();
    scrollOnSmallScreen(*m_window, *m_optionsDrawer, *m_optionsSlide);
}

void MainWndCtrl::restoreWindow() {
    if (const std::optional<QSize> size = m_memory->size()) {
        m_window->resize(*size + QSize(static_cast<int>(OptionsDrawer::kFullWidth), 0));
    } else {
        fitIntoScreen(*m_window);
    }
    m_tableview->columns().setShares(m_memory->columnShares());
}

/// A window that fills the screen keeps the size that it had before.
void MainWndCtrl::keepWindow() {
    if (!m_window->isMaximized() && !m_window->isFullScreen()) {
        m_memory->keepSize(m_window->size() - QSize(m_optionsDrawer->openWidth(), 0));
    }
    if (const std::vector<double> &shares = m_tableview->columns().shares(); !shares.empty()) {
        m_memory->keepColumnShares(shares);
    }
}

/// Makes room for texts that are larger than usual.
void MainWndCtrl::fitLargeTexts() {
    constexpr int kIconSize = 16;
    band->setFixedHeight(scaledToText(CycleSkinedView::kBandHeight));
    m_tableview->setIconSize(QSize(1, 1) * scaledToText(kIconSize));
    stackPairs(*imageNumbersLayout);
    stackPairs(*textNumbersLayout);
    if (textScale() > 1) { // The settings of texts have the most rows.
        constexpr int kCloseRows = 3;
        propertiesLayout->setVerticalSpacing(kCloseRows);
        textPageLayout->setSpacing(kCloseRows);
        textNumbersLayout->setVerticalSpacing(kCloseRows);
    }
    const auto sides = [](const QWidget *widget) {
        const QMargins margins = widget->layout()->contentsMargins();
        return margins.left() + margins.right();
    };
    const int width = static_cast<int>(OptionsDrawer::kFullWidth) - sides(optionsPanel);
    stackWideRow(*standardsLayout, width);
    stackWideRow(*saveLayout, width);
    const int room = width - 2 * m_settingsViewContainer->frameWidth();
    for (const QWidget *view : {m_imagePageSizeView, m_textPageSizeView, m_securityView}) {
        breakWideLabels(*view, room - sides(view));
    }
}

void MainWndCtrl::awakeFromNib() {
    m_tableview->horizontalHeader()->setFixedHeight(scaledToText(kHeaderHeight));
}

void MainWndCtrl::windowDidLoad() {
    m_optionsSlide = std::make_unique<OptionsSlide>(*m_window, *m_optionsDrawer);
    m_optionsSlide->beginHidden();
    // The window may have moved a button under the pointer and away again.
    connect(m_optionsSlide.get(), &OptionsSlide::rested, this, [this] {
        for (SkinButton *button : {m_btnExpand, m_btnElapse}) {
            if (!button->underMouse()) {
                button->showNormalImage();
            }
        }
    });
    initCtrl();
    showSettingsView(m_imagePageSizeView);
    m_tableview->setAcceptDrops(true);
    m_prgCreate->setTextVisible(false);

    m_cffontRef = m_fontName.toUtf8();

    m_mtxTextPageSizeMode->buttons().at(TextPageA4)->setChecked(true);
    m_mtxImagePageSizeMode->buttons().at(ImagePageFollowsImage)->setChecked(true);
    m_comboCompressMethod->setCurrentIndex(0);
    observeNotifications();

    m_convertInfoDict.reset();
    m_pdfDoc.reset();
    m_destFilePathName.clear();
    readOutputFolder();
    m_tfOutputFolder->setText(m_outputFolderPath);
    m_tableview->setFocus();
}

void MainWndCtrl::initCtrl() {
    const QString programs = u"%1/Contents/MacOS/"_s.arg(m_services.bundlePath);
    const QString folder = u"%1/image"_s.arg(programs);
    const bool mirrored = m_window->isRightToLeft(); // The two point where the panel goes.
    const std::array<std::pair<SkinButton *, QString>, 12> skins{{
        {m_btnAddImage, u"add-image"_s},
        {m_btnAddTxt, u"add-txt"_s},
        {m_btnAddPDF, u"add-pdf"_s},
        {m_btnRemove, u"remove"_s},
        {m_btnCreate, u"convert"_s},
        {m_btnExpand, mirrored ? u"hide-option"_s : u"show-option"_s},
        {m_btnElapse, mirrored ? u"show-option"_s : u"hide-option"_s},
        {m_btnOpen, u"open"_s},
        {m_btnBrowse, u"browse"_s},
        {m_btnSecuritySetting, u"security-setting"_s},
        {m_btnImageSetting, u"image-setting"_s},
        {m_btnTxtSetting, u"text-setting"_s},
    }};
    for (const auto &[button, name] : skins) {
        skinButton(folder, name, button);
    }
    // The list starts empty. The disabled look is known only from here on.
    m_btnCreate->setEnabled(false);
    m_btnRemove->setEnabled(false);
    connectControls();
    connectAnswer();
    connectHistory();
    connectFaults();
    initList();
    initFields();
}

/// The pictures of the list, and what its hint offers.
void MainWndCtrl::initList() {
    const QString resources = resourcesFolder();
    auto *delegate = new EntryDelegate(m_tableview);
    delegate->setMark(FileKind::Text, SkinImage::named(resources, u"kind-text"_s));
    delegate->setMark(FileKind::Image, SkinImage::named(resources, u"kind-image"_s));
    delegate->setMark(FileKind::Pdf, SkinImage::named(resources, u"kind-pdf"_s));
    m_tableview->setItemDelegateForColumn(FilesArray::NameColumn, delegate);
    EmptyHint &hint = m_tableview->emptyHint();
    hint.setPicture(SkinImage::named(resources, u"drop-files"_s));
    connect(&hint, &EmptyHint::addFilesAsked, this, &MainWndCtrl::clickBtnAddFile);
    connect(&hint, &EmptyHint::addFolderAsked, this, &MainWndCtrl::clickBtnAddFolder);
    QWidget *before = m_tableview;
    for (auto *button : hint.findChildren<QPushButton *>()) {
        QWidget::setTabOrder(before, button);
        before = button;
    }
}

/// What stands in fields beside their texts.
void MainWndCtrl::initFields() {
    new PasswordEye(*m_tfUserPassword, tr("Show the user password"));
    new PasswordEye(*m_tfOwnerPassword, tr("Show the owner password"));
    for (const QWidget *view : {m_imagePageSizeView, m_textPageSizeView}) {
        for (auto *field : view->findChildren<QLineEdit *>()) {
            new LengthHint(*field);
        }
    }
}

QString MainWndCtrl::resourcesFolder() const {
    return u"%1/Contents/Resources"_s.arg(m_services.bundlePath);
}

void MainWndCtrl::skinButton(const QString & /*folder*/, const QString &name,
                             SkinButton *button) const {
    const QString resources = resourcesFolder();
    const bool isInPanel = optionsPanel->isAncestorOf(button);
    const auto look = [&](const QString &suffix, const SkinImage &otherwise) {
        const SkinImage image = SkinImage::named(resources, name + suffix, button->text(),
                                                 isInPanel ? SkinWidth::Stays : SkinWidth::Grows);
        return image.isNull() ? otherwise : image;
    };
    const SkinImage normal = look(QString(), {});
    const SkinImage hover = look(u"-hover"_s, normal);
    if (!normal.isNull()) {
        // The panel has no room for larger ones.
        const double scale = isInPanel ? 1 : textScale();
        button->fixSize(normal.size() * scale);
    }
    button->setNormalImage(normal);
    button->setMouseOnImage(hover);
    button->setMouseDownImage(hover);
    button->setDisableImage(look(u"-disable"_s, normal));
}

void MainWndCtrl::connectControls() {
    using Self = MainWndCtrl;
    const auto on = [this](QAbstractButton *button, void (Self::*action)()) {
        connect(button, &QAbstractButton::clicked, this, action);
    };
    on(m_btnAddFile, &Self::clickBtnAddFile);
    on(m_btnAddFolder, &Self::clickBtnAddFolder);
    on(m_btnAddImage, &Self::clickBtnAddImage);
    on(m_btnAddTxt, &Self::clickBtnAddTxt);
    on(m_btnAddPDF, &Self::clickBtnAddPDF);
    on(m_btnRemove, &Self::clickBtnRemove);
    on(m_btnClear, &Self::clickBtnClear);
    on(m_btnCreate, &Self::clickBtnCreate);
    on(m_btnOpen, &Self::clickBtnOpen);
    on(m_btnBrowse, &Self::clickBtnBrowse);
    on(m_btnExpand, &Self::clickBtnExpand);
    on(m_btnElapse, &Self::clickBtnElapse);
    on(m_btnSave, &Self::clickBtnSave);
    connect(m_btnMerge, &QCheckBox::toggled, this, &Self::clickBtnMerge);
    clickBtnMerge();
    // Screen readers toggle without a click.
    const auto onToggle = [&](QAbstractButton *button, void (Self::*action)()) {
        on(button, action);
        connect(button, &QAbstractButton::toggled, this, action);
    };
    onToggle(m_btnSecuritySetting, &Self::clickBtnSecurity);
    onToggle(m_btnImageSetting, &Self::clickBtnImagePageSize);
    onToggle(m_btnTxtSetting, &Self::clickBtnTextPageSize);
    connect(m_btnCheckUserPassword, &QCheckBox::toggled, this, &Self::clickBtnCheckUserPassword);
    connect(m_btnCheckOwnerPassword, &QCheckBox::toggled, this, &Self::clickBtnCheckOwnerPassword);
    // The arrow keys choose a row without a click.
    connect(m_mtxTextPageSizeMode, &QButtonGroup::buttonToggled, this, &Self::clickMtxTextPageSize);
    connect(m_mtxImagePageSizeMode, &QButtonGroup::buttonToggled, this,
            &Self::clickMtxImagePageSize);
    connect(m_tableview, &SkinTableView::previewAsked, this, &Self::togglePreview);
}

/// What the answer of a run says holds for the list of that run.
void MainWndCtrl::connectAnswer() {
    connect(m_answer, &RunAnswer::openAsked, this,
            [this](const QString &path) { m_services.desktop.openFile(path); });
    connect(m_answer, &RunAnswer::folderAsked, this,
            [this](const QString &folder) { m_services.desktop.openFile(folder); });
    connect(m_answer, &RunAnswer::failuresAsked, this, &MainWndCtrl::showFailures);
    for (const auto change : {&FilesArray::rowsInserted, &FilesArray::rowsRemoved}) {
        connect(m_filesArray.get(), change, m_answer, &QWidget::hide);
    }
    connect(m_filesArray.get(), &FilesArray::modelReset, m_answer, &QWidget::hide);
}

void MainWndCtrl::observeNotifications() {
    connect(&m_services.notifications, &NotificationCenter::posted, this,
            [this](const QString &name, const QVariantMap &userInfo) {
                if (name == NotificationCenter::didEndPageWrite()) {
                    endPageWrite(userInfo.value(NotificationCenter::pageIndexKey()).toInt());
                } else if (name == NotificationCenter::compressionCompleted()) {
                    compressCompleted();
                }
            });
}

} // namespace folioforge
