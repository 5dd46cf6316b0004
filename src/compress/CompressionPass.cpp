// SPDX-License-Identifier: Apache-2.0

#include "compress/CompressionPass.h"

#include "compress/DuplicateStreams.h"
#include "compress/ImageColors.h"
#include "compress/ImagePlan.h"
#include "compress/ImageUses.h"
#include "compress/QuartzFilter.h"
#include "compress/ReducedStreams.h"
#include "compress/StreamFilters.h"
#include "compress/TemporaryCopy.h"
#include "error/Error.h"
#include "error/Reasons.h"
#include "files/OutputFile.h"
#include "pdf/PDFContext.h"
#include "pdf/Password.h"
#include "pdf/QpdfErrors.h"
#include "pdf/XmpPacket.h"
#include "pdf/import/SourceInput.h"
#include "pdf/writing/DocumentWriter.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

#include <qpdf/QPDF.hh>

namespace folioforge {

namespace {

/// What PDF/A allows without conditions: of the white and the steps of sRGB.
constexpr const char *kGreyOfNoDevice = "[/CalGray << /WhitePoint [0.9505 1 1.089] /Gamma 2.2 >>]";

/// Reports the pages of a document as written in the measure in which its objects are.
class PageProgress {
  public:
    PageProgress(QPDF &document, const EndPageWrite &endPageWrite, std::stop_token stop)
        : m_endPageWrite(endPageWrite)
        , m_pages(document.getAllPages().size())
        , m_objects(document.getAllObjects().size())
        , m_stop(std::move(stop)) {}

    /// Throws Error where the pass is to end: what stops here needs no more objects.
    void objectWritten() {
        if (m_stop.stop_requested()) {
            throw conversionStopped();
        }
        m_writtenObjects = std::min(m_writtenObjects + 1, m_objects);
        reportPages(m_pages * m_writtenObjects / m_objects);
    }
    void finish() { reportPages(m_pages); }

  private:
    void reportPages(std::size_t written) {
        for (; m_endPageWrite && m_writtenPages < written; ++m_writtenPages) {
            m_endPageWrite(static_cast<int>(m_writtenPages), static_cast<int>(m_pages));
        }
    }

    const EndPageWrite &m_endPageWrite;
    std::size_t m_pages;
    std::size_t m_objects;
    std::stop_token m_stop;
    std::size_t m_writtenObjects = 0;
    std::size_t m_writtenPages = 0;
};

void unlock(QPDF &document, const std::shared_ptr<SourceInput> &input,
            const Encryption *encryption) {
    const QByteArray password = encryption ? preparedPasswords(*encryption).owner : QByteArray();
    document.setSuppressWarnings(true);
    document.processInputSource(input, password.isEmpty() ? nullptr : password.constData());
}

void write(QPDF &document, OutputFile &copy, const CompressionOptions &options,
           const Claims &claims, const EndPageWrite &endPageWrite) {
    DocumentForm form = formFor(claims);
    form.version = document.getVersionAsPDFVersion();
    form.repacks = true;
    PageProgress progress(document, endPageWrite, options.stop);
    writeDocument(document, copy, options.encryption.get(), form,
                  {{}, [&progress] { progress.objectWritten(); }});
    progress.finish();
}

/// `images` in the order of their pages.
std::vector<KeptImage> byPage(std::vector<KeptImage> images) {
    std::ranges::stable_sort(images, {}, &KeptImage::page);
    return images;
}

void runPass(const QString &path, QuartzFilter filter, const CompressionOptions &options,
             OutputFile &copy, const EndPageWrite &endPageWrite, CompressionOutcome &outcome) {
    const auto reader = std::make_shared<SourceReader>(options.calls);
    const auto input = std::make_shared<SourceInput>(FileVersion::of(path), reader);
    QPDF document;
    outcome.imagesReduced = withAllObjects(document, *reader, [&] {
        unlock(document, input, options.encryption.get());
        mergeDuplicateStreams(document);
        const Claims claims = claimsOf(document);
        const std::vector<ImageUse> uses = findImageUses(document);
        if (options.grey) {
            filter.grey = claims.pdfA.isEmpty() ? "/DeviceGray" : kGreyOfNoDevice;
            for (const ImageUse &use : uses) {
                greyPalette(document.getObjectByObjGen(use.image).getDict(), filter.grey);
            }
        }
        ImagePlan plan = planImages(document, uses, filter);
        if (!claims.pdfA.isEmpty()) {
            keepColorsOfData(plan);
        }
        const auto streams = ReducedStreams::install(std::move(plan.planned));
        write(document, copy, options, claims, endPageWrite);
        std::vector<KeptImage> kept = std::move(plan.kept);
        kept.insert(kept.end(), streams->kept().begin(), streams->kept().end());
        outcome.imagesKept = byPage(std::move(kept));
        return streams->done();
    });
    reader->finish();
}

/// Makes the copy of the document at `path`, and hands it over where it is smaller.
void compressInto(const QString &path, const CompressionOptions &options,
                  const EndPageWrite &endPageWrite, CompressionOutcome &outcome) {
    const QuartzFilter filter =
        options.filter ? *options.filter : readQuartzFilter(options.filterFile);
    TemporaryCopy copy(options.temporaryFolder, path, options.calls);
    runPass(path, filter, options, copy.file(), endPageWrite, outcome);
    if (!options.grey && copy.size() >= outcome.bytesBefore) {
        outcome.imagesReduced = 0;
        return;
    }
    auto file = copy.finish(options.flush);
    outcome.bytesAfter = copy.size();
    outcome.convertInfo =
        ConvertInfo{QFile::decodeName(file->path().c_str()), path, std::move(file)};
}

} // namespace

CompressionOutcome compress(const QString &path, const CompressionOptions &options,
                            const EndPageWrite &endPageWrite) {
    CompressionOutcome outcome;
    outcome.bytesBefore = QFileInfo(path).size();
    outcome.bytesAfter = outcome.bytesBefore;
    StoppableCalls calls(options.calls, options.stop);
    CompressionOptions stoppable = options;
    stoppable.calls = calls;
    try {
        translateQpdfErrors([&] { compressInto(path, stoppable, endPageWrite, outcome); });
    } catch (const Error &error) {
        outcome.error =
            options.stop.stop_requested() ? conversionStopped().reason() : error.reason();
    }
    return outcome;
}

void putInPlace(const ConvertInfo &convertInfo, Flush flush, SystemCalls &calls) {
    const QString &destination = convertInfo.destFilePathName;
    OutputFile file(destination, calls);
    appendFile(file, convertInfo.tempFilePathName, calls);
    file.finish(flush);
    file.replace(destination, flush);
}

} // namespace folioforge
