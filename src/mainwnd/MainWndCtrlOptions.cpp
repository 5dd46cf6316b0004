// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/MainWndCtrl.h"

#include "convert/Bundle.h"
#include "convert/Checks.h"
#include "convert/ConversionOptions.h"
#include "mainwnd/Desktop.h"
#include "mainwnd/FilesArray.h"
#include "mainwnd/Notices.h"
#include "mainwnd/OptionsSlide.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QSignalBlocker>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// The settings key of the output folder.
QString outputFolderKey() {
    return u"CustomizeOutputDir"_s;
}

/// Row of the radio matrix; -1 when none is selected.
int selectedRow(const QButtonGroup &matrix) {
    return static_cast<int>(matrix.buttons().indexOf(matrix.checkedButton()));
}

qint64 numberIn(const QLineEdit &field) {
    return integerValue(field.text());
}

/// Does what "chmod 777" does, without a shell that could misread the path.
void makeWorldWritable(const QString &folder) {
    using P = QFileDevice::Permission;
    QFile::setPermissions(folder, P::ReadOwner | P::WriteOwner | P::ExeOwner | P::ReadGroup |
                                      P::WriteGroup | P::ExeGroup | P::ReadOther | P::WriteOther |
                                      P::ExeOther);
}

} // namespace

void MainWndCtrl::clickBtnExpand() {
    m_optionsSlide->slideTo(static_cast<int>(OptionsDrawer::kFullWidth));
    offerToHideOptions();
}

void MainWndCtrl::offerToHideOptions() {
    exchangeButtons(m_btnExpand, m_btnElapse);
    m_labelOptions->setText(tr("Hide Options"));
}

void MainWndCtrl::clickBtnElapse() {
    m_optionsSlide->slideTo(0);
    exchangeButtons(m_btnElapse, m_btnExpand);
    m_labelOptions->setText(tr("Show Options"));
}

/// Hides the button that was pressed and shows the other in its place, with the keyboard's focus.
void MainWndCtrl::exchangeButtons(SkinButton *pressed, SkinButton *other) {
    other->setVisible(true);
    if (pressed->hasFocus()) {
        other->setFocus();
    }
    pressed->setVisible(false);
    // The other button appears under the pointer and must not keep an old hover look.
    QMetaObject::invokeMethod(other, &SkinButton::showNormalImage, Qt::QueuedConnection);
}

void MainWndCtrl::clickBtnTextPageSize() {
    showSettingsView(m_textPageSizeView);
}

void MainWndCtrl::clickBtnImagePageSize() {
    showSettingsView(m_imagePageSizeView);
}

void MainWndCtrl::clickBtnSecurity() {
    showSettingsView(m_securityView);
}

void MainWndCtrl::markSettingsButton(const QWidget *view) {
    const std::array<std::pair<SkinButton *, QWidget *>, 3> choices{
        {{m_btnTxtSetting, m_textPageSizeView},
         {m_btnImageSetting, m_imagePageSizeView},
         {m_btnSecuritySetting, m_securityView}}};
    for (const auto &[button, choice] : choices) {
        const QSignalBlocker silence(button);
        button->setChecked(choice == view);
        if (choice != view) {
            button->showNormalImage();
        }
    }
}

void MainWndCtrl::showSettingsView(QWidget *view) {
    markSettingsButton(view);
    if (view == m_currentSettingsView) {
        return;
    }
    for (QWidget *other : {m_textPageSizeView, m_imagePageSizeView, m_securityView}) {
        if (other != view) {
            m_settingsViewContainer->layout()->removeWidget(other);
            other->setParent(m_settingsViewStore);
        }
    }
    m_currentSettingsView = view;
    m_settingsViewContainer->layout()->addWidget(view);
    view->show();
}

void MainWndCtrl::EnableSettings(bool enable) {
    for (QLineEdit *field : {m_tfTitle, m_tfAuthor, m_tfSubject, m_tfKeywords}) {
        field->setEnabled(enable);
    }
    m_btnCheckUserPassword->setEnabled(enable);
    m_btnCheckOwnerPassword->setEnabled(enable);
    m_tfUserPassword->setEnabled(enable && m_btnCheckUserPassword->isChecked());
    const bool owner = enable && m_btnCheckOwnerPassword->isChecked();
    m_btnCheckAllowPrint->setEnabled(owner);
    m_btnCheckAllowCopy->setEnabled(owner);
    m_tfOwnerPassword->setEnabled(owner);
    m_btnSave->setEnabled(enable);
}

void MainWndCtrl::clickMtxTextPageSize() {
    const bool custom = selectedRow(*m_mtxTextPageSizeMode) == TextPageCustom;
    m_tfTextCustomizedPageWidth->setEnabled(custom);
    m_tfTextCustomizedPageHeight->setEnabled(custom);
}

void MainWndCtrl::clickMtxImagePageSize() {
    const bool custom = selectedRow(*m_mtxImagePageSizeMode) != ImagePageFollowsImage;
    m_tfImageCustomizedPageWidth->setEnabled(custom);
    m_tfImageCustomizedPageHeight->setEnabled(custom);
}

/// Only a merged PDF has a name of its own.
void MainWndCtrl::clickBtnMerge() {
    m_lbOutputName->setEnabled(m_btnMerge->isChecked());
    m_tfOutputName->setEnabled(m_btnMerge->isChecked());
}

void MainWndCtrl::clickBtnCheckUserPassword() {
    m_tfUserPassword->setEnabled(m_btnCheckUserPassword->isChecked());
    m_tfUserPassword->clear();
}

void MainWndCtrl::clickBtnCheckOwnerPassword() {
    const bool wanted = m_btnCheckOwnerPassword->isChecked();
    m_btnCheckAllowPrint->setEnabled(wanted);
    m_btnCheckAllowCopy->setEnabled(wanted);
    m_tfOwnerPassword->setEnabled(wanted);
    m_tfOwnerPassword->clear();
}

PageSetup MainWndCtrl::textPageSetup() const {
    return {selectedRow(*m_mtxTextPageSizeMode),
            numberIn(*m_tfTextCustomizedPageWidth),
            numberIn(*m_tfTextCustomizedPageHeight),
            {numberIn(*m_tfTextPageMarginLeft), numberIn(*m_tfTextPageMarginRight),
             numberIn(*m_tfTextPageMarginTop), numberIn(*m_tfTextPageMarginBottom)}};
}

PageSetup MainWndCtrl::imagePageSetup() const {
    return {selectedRow(*m_mtxImagePageSizeMode),
            numberIn(*m_tfImageCustomizedPageWidth),
            numberIn(*m_tfImageCustomizedPageHeight),
            {numberIn(*m_tfImagePageMarginLeft), numberIn(*m_tfImagePageMarginRight),
             numberIn(*m_tfImagePageMarginTop), numberIn(*m_tfImagePageMarginBottom)}};
}

SecuritySettings MainWndCtrl::securitySettings() const {
    SecuritySettings settings;
    settings.useUserPassword = m_btnCheckUserPassword->isChecked();
    settings.userPassword = m_tfUserPassword->text();
    settings.useOwnerPassword = m_btnCheckOwnerPassword->isChecked();
    settings.ownerPassword = m_tfOwnerPassword->text();
    settings.refusePrint = m_btnCheckAllowPrint->isChecked();
    settings.refuseCopy = m_btnCheckAllowCopy->isChecked();
    return settings;
}

ConversionOptions MainWndCtrl::conversionOptions() const {
    ConversionOptions options;
    options.outputFolder = m_tfOutputFolder->text();
    options.merge = m_btnMerge->isChecked();
    options.outputName = m_tfOutputName->text();
    options.info.title = m_tfTitle->text();
    options.info.author = m_tfAuthor->text();
    options.info.subject = m_tfSubject->text();
    options.info.keywords = m_tfKeywords->text();
    options.security = securitySettings();
    options.textPage = textPageSetup();
    options.imagePage = imagePageSetup();
    options.verify = m_btnVerify->isChecked();
    options.accessible = m_btnAccessible->isChecked();
    options.language = systemLanguage();
    if (m_btnArchive->isChecked()) {
        options.archive.emplace().level =
            options.accessible ? ArchiveLevel::PdfA2a : ArchiveLevel::PdfA2u;
    }
    if (m_btnReadable->isChecked()) {
        options.readable.emplace();
    }
    options.compressIndex = m_comboCompressMethod->currentIndex();
    return options;
}

/// The options with the font. To find it takes four of the sixty milliseconds of the window's
/// start, which needs none.
ConversionOptions MainWndCtrl::runOptions() {
    ConversionOptions options = conversionOptions();
    if (!m_ctFont) {
        m_ctFont = FontCascade::load({QString::fromUtf8(m_cffontRef)}, m_fontSize);
    }
    options.textFont = m_ctFont;
    return options;
}

QSizeF MainWndCtrl::getTextPageSize() const {
    return folioforge::getTextPageSize(textPageSetup());
}

QSizeF MainWndCtrl::getImagePageSize() const {
    return folioforge::getImagePageSize(imagePageSetup());
}

bool MainWndCtrl::checkTextPageSizeSettings() {
    return passes(folioforge::checkTextPageSizeSettings(textPageSetup()));
}

bool MainWndCtrl::checkImagePageSizeSettings() {
    return passes(folioforge::checkImagePageSizeSettings(imagePageSetup()));
}

bool MainWndCtrl::checkSecuritySettings() {
    return passes(folioforge::checkSecuritySettings(securitySettings()));
}

void MainWndCtrl::readOutputFolder() {
    QSettings &settings = m_services.settings;
    m_outputFolderPath = settings.value(outputFolderKey()).toString();
    if (!m_outputFolderPath.isEmpty()) {
        return;
    }
    m_outputFolderPath = makeDefaultOutputFolder();
    m_services.desktop.openURL(tutorialPage(m_services.bundlePath));
    settings.setValue(outputFolderKey(), m_outputFolderPath);
    settings.sync();
}

QString MainWndCtrl::makeDefaultOutputFolder() const {
    QString folder = m_services.homeFolder + u"/Documents/Folioforge"_s;
    if (QFileInfo::exists(folder)) {
        return folder;
    }
    if (!QDir().mkpath(folder)) {
        return m_services.homeFolder + u"/Documents"_s;
    }
    makeWorldWritable(folder);
    return folder;
}

void MainWndCtrl::clickBtnBrowse() {
    FilePanel panel;
    panel.title = tr("Output Folder");
    panel.acceptLabel = tr("Save");
    panel.chooses = FilePanel::Chooses::Folders;
    panel.multiple = false;
    panel.startFolder = m_outputFolderPath;
    m_services.notices.showFilePanel(
        m_window.get(), panel, [this](const QStringList &paths) { outputFolderChosen(paths); });
}

void MainWndCtrl::outputFolderChosen(const QStringList &paths) {
    if (paths.isEmpty()) {
        return;
    }
    if (!QFileInfo(paths.first()).isWritable()) {
        QMetaObject::invokeMethod(this, &MainWndCtrl::showInvalidOutputPathWarning,
                                  Qt::QueuedConnection);
        return;
    }
    m_outputFolderPath = paths.first();
    m_tfOutputFolder->setText(m_outputFolderPath);
    m_services.settings.setValue(outputFolderKey(), m_outputFolderPath);
}

void MainWndCtrl::showInvalidOutputPathWarning() {
    m_services.notices.showSheet(m_window.get(), folderNotWritableNotice(),
                                 [this] { endShowInvalidOutputFolder(); });
}

// NOLINTNEXTLINE(readability-make-member-function-const): what it starts changes the window.
void MainWndCtrl::endShowInvalidOutputFolder() {
    QMetaObject::invokeMethod(this, &MainWndCtrl::clickBtnBrowse, Qt::QueuedConnection);
}

void MainWndCtrl::clickBtnOpen() {
    if (!QFileInfo::exists(m_outputFolderPath)) {
        m_services.notices.showPanel(
            {tr("Error"), tr("Output folder does not exist, please select another one.")});
        return;
    }
    m_services.desktop.openFile(m_outputFolderPath);
}

void MainWndCtrl::clickedDest(int row) {
    const PDFFileInfo &entry = m_filesArray->at(row);
    if (entry.stateIndex() != FinishedAsLink) {
        return;
    }
    const QString &path = entry.destFilePathName();
    if (isSafeInShell(path)) {
        m_services.desktop.runInShell(openCommand(openVerb(), path));
    } else {
        m_services.desktop.openFile(path);
    }
}

} // namespace folioforge
