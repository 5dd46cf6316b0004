#pragma once

#include "files/OutputFile.h"
#include "files/SystemCalls.h"
#include "pdf/DocumentInfo.h"
#include "pdf/Password.h"
#include "text/FontCascade.h"

#include <QRectF>
#include <QString>

#include <functional>
#include <memory>
#include <span>

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
};

/// The drawing context of one PDF file. Pages are drawn one after another; nothing appears under
/// the final name before close() has succeeded, and a context destroyed unclosed leaves nothing.
///
/// The origin of a page is its lower left corner, lengths are in points (1/72 inch).
class PDFContext {
  public:
    struct Settings {
        DocumentInfo info;
        std::unique_ptr<Encryption> encryption; ///< Null for an unprotected document.
        Flush flush = Flush::Always;
        /// What every file is written through, and sources of the document are read through.
        std::reference_wrapper<SystemCalls> calls = SystemCalls::system();
    };

    /// A context that will write to `path`.
    PDFContext(QString path, Settings settings);
    ~PDFContext();
    PDFContext(const PDFContext &) = delete;
    PDFContext &operator=(const PDFContext &) = delete;

    void beginPage(const QRectF &mediaBox);
    void setRGBFillColor(double red, double green, double blue);
    /// The font of the glyphs that follow: faces and advances are the cascade's.
    void setFont(std::shared_ptr<const FontCascade> font, double size);
    /// Draws `glyphs` from the baseline point on; each advances as measured.
    void showGlyphsAtPoint(double x, double y, std::span<const Glyph> glyphs);
    /// Draws the image into the rectangle; `orientation` (EXIF, 1 to 8) turns it inside.
    void drawImage(const QRectF &rect, PdfImage image, int orientation);
    void endPage();

    /// Adds every page of the PDF at `sourcePath` unchanged, with its links, form fields and
    /// bookmarks. Returns the number of pages. Throws Error when the document cannot be read.
    int addDocument(const QString &sourcePath);

    [[nodiscard]] int pageCount() const;
    /// Waits for the pages drawn so far, which another core compresses. Throws Error when one
    /// cannot be stored; call truncatePages() then.
    void waitForPages();
    /// Removes the drawn pages after the first `count`, such as those of an entry that failed.
    void truncatePages(int count);

    /// Writes the document whole and gives it its name without ever replacing another file. When
    /// the name is taken meanwhile, `nextPath` gives the next one to try; without it the result is
    /// NameTaken.
    CloseResult close(const std::function<QString()> &nextPath = {});

  private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace folioforge
