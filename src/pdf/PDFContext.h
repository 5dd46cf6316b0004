// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"
#include "files/OutputFile.h"
#include "files/SystemCalls.h"
#include "pdf/DocumentInfo.h"
#include "pdf/DocumentParts.h"
#include "pdf/PageChoice.h"
#include "pdf/Password.h"
#include "pdf/archive/ArchiveLevel.h"
#include "pdf/archive/SourceOriginal.h"
#include "pdf/tags/TagOptions.h"
#include "text/FontCascade.h"

#include <QRectF>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace folioforge {

struct PdfImage;

/// How the writing of a document ended.
struct CloseResult {
    enum class Status {
        Written,   ///< The whole document stands under `path`.
        NameTaken, ///< Someone else's file appeared under the name; nothing was written.
        Failed     ///< Nothing was written; `reason` says why.
    };
    Status status = Status::Failed;
    QString path;
    QString reason;
    Warnings warnings;    ///< What could not be done for a document that was written.
    QString archive = {}; ///< The standard for archives that it claims, such as "PDF/A-2u".
    /// Kinds that sources brought and that could not be for all of the document together.
    std::vector<PartKind> left = {};
};

/// Looks at a document that is whole on its disk and has no name yet, the CRC-32 of whose bytes is
/// given. Throws Error where it must not get one.
using Inspection = std::function<void(OutputFile &file, std::uint32_t checksum)>;

/// What a source document brought.
struct AddedDocument {
    int pages = 0;
    Warnings warnings; ///< What of the document is not carried over, or changed.
    DocumentParts parts;
};

/// The drawing context of one PDF file. Pages are drawn one after another. Nothing appears under
/// the final name before close() succeeds; a context that is not closed leaves nothing.
///
/// The origin of a page is its lower left corner, lengths are in points (1/72 inch).
class PDFContext {
  public:
    struct Settings {
        DocumentInfo info;
        std::unique_ptr<Encryption> encryption; ///< Null for an unprotected document.
        /// Whether a source document that is added is all of this one; its catalog then stays.
        bool oneSource = false;
        /// Whether the first source document with pages gives what `info` lacks.
        bool keepInfo = false;
        bool sourceBookmarks = true;    ///< Whether those of source documents are taken.
        std::optional<TagOptions> tags; ///< Nothing: pages that are drawn are not tagged.
        InputPasswords inputPasswords;  ///< Of source documents.
        /// The source documents all of whose pages will be added, in their order: each is parsed
        /// while the one before it is copied.
        std::vector<QString> sources = {};
        std::optional<ArchiveOptions> archive; ///< The standard that the document keeps.
        Flush flush = Flush::Always;
        bool mayReplace = false; ///< The document takes the place of a file of its name.
        /// Every file is written and every source is read through these.
        std::reference_wrapper<SystemCalls> calls = SystemCalls::system();
    };

    /// A context that writes to `path` when it is closed.
    PDFContext(QString path, Settings settings);
    ~PDFContext();
    PDFContext(const PDFContext &) = delete;
    PDFContext &operator=(const PDFContext &) = delete;

    /// What is drawn from now on, up to the next source, is the content of the file `name`: an
    /// element of the structure tree where pages are tagged, like what follows.
    void beginSource(const QString &name);
    /// `mediaBox` is in points. Throws Error when a standard that is kept forbids its size.
    void beginPage(const QRectF &mediaBox);
    /// What is shown from now on, on this page and those after it, is a paragraph.
    void beginParagraph();
    /// Components from 0 to 1.
    void setRGBFillColor(double red, double green, double blue);
    /// Sets the font of the glyphs that follow, at `size` points.
    void setFont(std::shared_ptr<const FontCascade> font, double size);
    /// Draws `glyphs` from the point (x, y) of the baseline on. Throws Error.
    void showGlyphsAtPoint(double x, double y, std::span<const Glyph> glyphs);
    /// What is shown until endActualText() is read as `text`, whatever each glyph stands for
    /// (ISO 32000-1, 14.9.4). Show glyphs alone meanwhile.
    void beginActualText(QStringView text);
    void endActualText();
    /// Draws the image into the rectangle, turned inside it as `orientation` (EXIF, 1 to 8) says.
    /// `description` tells those of it who do not see it, and `look` sees it as it goes in. Throws
    /// Error.
    void drawImage(const QRectF &rect, PdfImage image, int orientation,
                   const QString &description = {},
                   const std::function<void(const PdfImage &)> &look = {});
    /// Of what is drawn on the page from now on, only what lies inside `rect` (points) is shown.
    void clipToRect(const QRectF &rect);
    /// Throws Error when the contents of this page or an earlier one cannot be stored.
    void endPage();
    /// Lets `draw` show glyphs on a page of text that was drawn here, from 0: what belongs to the
    /// page and not to what is told on it, such as its number. To be called between pages, once for
    /// a page. Throws Error.
    void drawArtifact(int page, const std::function<void()> &draw);
    /// When the document is created, in its information and in what is drawn: from the first call
    /// on the same. Throws Error as sourceDate() does.
    QDateTime creationDate();

    /// Adds the pages of the PDF at `sourcePath` that `choice` names, with their links, form fields
    /// and bookmarks, by default every page unchanged. Throws Error when the document cannot be
    /// read, or lacks a page that `choice` names.
    AddedDocument addDocument(const QString &sourcePath, const PageChoice &choice = {});

    /// Adds a bookmark that leads to the page at `page`, from 0; the bookmarks of a document that
    /// begins with that page stand under it. To be called in the order of the pages, for all that
    /// was added or for nothing.
    void addBookmark(const QString &title, int page);

    /// The pages so far, drawn and added.
    [[nodiscard]] int pageCount() const;
    /// The size in units of the page at `index`, from 0.
    [[nodiscard]] QSizeF pageSize(int index) const;
    /// How far the document is; to be asked for when no page is waited for.
    struct Mark {
        int pages = 0;
        qint64 stored = 0; ///< Bytes.
    };
    /// Attaches the source of what was drawn since `mark`. Throws Error.
    void attachSource(const SourceOriginal &source, const Mark &mark);
    /// Attaches `data`, a file called `name` of the MIME type `type` that tells of the whole
    /// document. Throws Error.
    void attachData(const QString &name, const QByteArray &type, const QByteArray &data);

    /// What checkPageSizes() says of the pages after the first `count`, and what the standard for
    /// archives has changed since the last call.
    [[nodiscard]] Warnings checkPagesAfter(int count);
    /// Waits for the pages drawn so far, which another core compresses. Throws Error when one
    /// cannot be stored; call rollBack() then.
    void waitForPages();

    [[nodiscard]] Mark mark() const;
    /// Removes what was drawn since `mark`, such as the pages of an entry that failed, and the data
    /// stored for it.
    void rollBack(const Mark &mark);

    /// Writes the document and gives it its name, in place of another file only where the settings
    /// say so, and then in one step. When the name is taken, `nextPath` gives the next one to try;
    /// without it the result is NameTaken. `inspect` has its say before that.
    CloseResult close(const std::function<QString()> &nextPath = {},
                      const Inspection &inspect = {});

  private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace folioforge
