// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "convert/ConversionOptions.h"
#include "filelist/PDFFileInfo.h"
#include "preview/EntryWriter.h"
#include "preview/PageProcess.h"
#include "preview/PreviewPanel.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

namespace folioforge {

/// What a preview shows: a document as it is, or an entry as it would be written.
struct PreviewSubject {
    PDFFileInfo entry;
    ConversionOptions options;
    QString document; ///< The path of the document that is shown; empty where the entry is written.
    QString password; ///< Of that document.
    QString problem;  ///< Why there is nothing to show, a sentence without a full stop.
};

/// Shows the pages of one entry in a panel and keeps them in step with the settings. An entry that
/// is no PDF is written to a temporary file first (EntryWriter), and a program of its own draws the
/// page (PageProcess).
class Preview : public QObject {
    Q_OBJECT

  public:
    /// Says what is to be shown now.
    using Ask = std::function<PreviewSubject()>;

    /// The program of the bundle at `bundlePath` that draws pages; not every build has it.
    static QString programIn(const QString &bundlePath);

    Preview(const QString &bundlePath, Ask ask);
    ~Preview() override;

    /// The panel; whoever shows it owns it.
    [[nodiscard]] PreviewPanel &panel() { return *m_panel; }
    /// Shows the panel, and the page as soon as it is there.
    void open();
    void close();
    [[nodiscard]] bool isOpen() const { return m_panel->isVisibleTo(m_panel->parentWidget()); }
    /// Asks again what is to be shown, soon: many changes are followed once.
    void refresh();

  private:
    void follow();
    void write();
    [[nodiscard]] bool isPageWritten() const;
    void show(const WrittenEntry &entry);
    void draw();
    void show(const DrawnPage &page);
    void showFailure(const QString &reason);
    void turnTo(int page);

    Ask m_ask;
    PreviewPanel *m_panel;
    EntryWriter m_writer;
    PageProcess m_process;
    QTimer m_calm;     ///< Runs until nothing has changed for a while.
    QTimer m_resize;   ///< The same for the size of the panel.
    QTimer m_patience; ///< Runs until it is time to say that a page is on its way.
    PreviewSubject m_subject;
    QString m_source;   ///< The path of the entry that is shown.
    QString m_document; ///< The PDF of which pages are drawn; empty until there is one.
    QString m_password;
    int m_page = 0;         ///< The one that is wanted; not yet written where it is beyond m_pages.
    int m_pages = 0;        ///< Of the document, as far as they are counted.
    int m_countedPages = 0; ///< Of a text; as many are asked for at most, and one more.
    bool m_hasMore = false; ///< The text has more pages than m_pages.
};

} // namespace folioforge
