#include "convert/PageWriters.h"

#include "convert/ImagePlacement.h"
#include "error/Error.h"
#include "text/TextPageLayout.h"

namespace folioforge {
namespace {

/// Thrown through the layout when the run is stopped in the middle of a text.
struct Stopped {};

/// Draws the rows of a text on pages of the context.
class ContextSink : public TextPageSink {
  public:
    ContextSink(PDFContext &context, QSizeF pageSize, const std::stop_token &stop)
        : m_context(context)
        , m_page(QPointF(0, 0), pageSize)
        , m_stop(stop) {}

    void beginPage() override {
        if (m_stop.stop_requested()) {
            throw Stopped();
        }
        m_context.beginPage(m_page);
        m_context.setFont(textFont(), textFont()->size());
        m_context.setRGBFillColor(0, 0, 0);
    }
    void showRow(double x, double y, std::span<const Glyph> glyphs) override {
        m_context.showGlyphsAtPoint(x, y, glyphs);
    }
    void endPage() override { m_context.endPage(); }

  private:
    PDFContext &m_context;
    QRectF m_page;
    const std::stop_token &m_stop;
};

} // namespace

void addTextPage(const PDFFileInfo &entry, PDFContext &context, const PageSetup &setup,
                 const std::stop_token &stop) {
    const QSizeF pageSize = getTextPageSize(setup);
    ContextSink sink(context, pageSize, stop);
    try {
        layOutText(entry.getFileString(), pageSize, setup.margins, *textFont(), sink);
    } catch (const Stopped &) {
        return;
    }
}

EmbeddedAs addImagePage(const PDFFileInfo &entry, PDFContext &context, const PageSetup &setup) {
    PdfImage image = toPdfImage(entry.filePathName());
    const EmbeddedAs embeddedAs = image.embeddedAs;
    const ImagePlacement placement = placeImage(image.header.sizeInPoints(), setup);
    context.beginPage(QRectF(QPointF(0, 0), placement.page));
    const int orientation = image.header.orientation;
    context.drawImage(placement.image, std::move(image), orientation);
    context.endPage();
    return embeddedAs;
}

int addPDFFile(const PDFFileInfo &entry, PDFContext &context) {
    return context.addDocument(entry.filePathName());
}

} // namespace folioforge
