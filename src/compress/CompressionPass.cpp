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
#include <qpdf/QPDFWriter.hh>

namespace folioforge {

namespace {

/// What PDF/A allows without conditions: of the white and the steps of sRGB.
constexpr const char *kGreyOfNoDevice = "[/CalGray << /WhitePoint [0.9505 1 1.089] /Gamma 2.2 >>]";

QString stopped() {
    return Reasons::tr("The conversion was stopped");
}

/// Turns the writer's percentage into the pages written and reports each page.
class PageProgress : public QPDFWriter::ProgressReporter {
  public:
    PageProgress(const EndPageWrite &endPageWrite, int pages, const OutputPipeline &output,
                 std::stop_token stop)
        : m_endPageWrite(endPageWrite)
        , m_pages(pages)
        , m_output(output)
        , m_stop(std::move(stop)) {}

    void reportProgress(int percent) override {
        const int written = percent * m_pages / 100;
        for (; m_written < written; ++m_written) {
            requireGoingOn();
            if (m_endPageWrite) {
                m_endPageWrite(m_written, m_pages);
            }
        }
        requireGoingOn();
    }

  private:
    /// Throws where the pass is to end: what fails or stops here needs no more pages.
    void requireGoingOn() const {
        m_output.throwFailure();
        if (m_stop.stop_requested()) {
            throw Error(stopped());
        }
    }

    const EndPageWrite &m_endPageWrite;
    int m_pages;
    const OutputPipeline &m_output;
    std::stop_token m_stop;
    int m_written = 0;
};

void unlock(QPDF &document, const std::shared_ptr<SourceInput> &input,
            const Encryption *encryption) {
    const QByteArray password = encryption ? preparedPasswords(*encryption).owner : QByteArray();
    document.setSuppressWarnings(true);
    document.processInputSource(input, password.isEmpty() ? nullptr : password.constData());
}

/// For the longest stream of a document of `size` bytes. No stream is longer than its file.
void requireRoomForStreams(QPDF &document, qsizetype size) {
    qsizetype longest = 0;
    for (QPDFObjectHandle &object : document.getAllObjects()) {
        if (object.isStream()) {
            longest = std::max(longest, statedLength(object.getDict().getKey("/Length")));
        }
    }
    requireRoomForStream(std::min(longest, size));
}

void write(QPDF &document, OutputPipeline &output, const CompressionOptions &options,
           const DocumentForm &form, const EndPageWrite &endPageWrite) {
    keepFragileStreams(document);
    QPDFWriter writer(document);
    writer.setOutputPipeline(&output);
    applyForm(writer, form);
    writer.setCompressStreams(true);
    writer.setDecodeLevel(qpdf_dl_generalized);
    if (options.encryption) {
        applyEncryption(writer, *options.encryption);
    } else {
        writer.setDeterministicID(true); // The same document is compressed the same.
    }
    const auto pages = static_cast<int>(document.getAllPages().size());
    writer.registerProgressReporter(
        std::make_shared<PageProgress>(endPageWrite, pages, output, options.stop));
    writer.write();
    output.throwFailure();
}

/// `images` in the order of their pages.
std::vector<KeptImage> byPage(std::vector<KeptImage> images) {
    std::ranges::stable_sort(images, {}, &KeptImage::page);
    return images;
}

void runPass(const QString &path, QuartzFilter filter, const CompressionOptions &options,
             OutputPipeline &output, const EndPageWrite &endPageWrite,
             CompressionOutcome &outcome) {
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
        requireRoomForStreams(document, QFileInfo(path).size());
        write(document, output, options, formFor(claims), endPageWrite);
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
    runPass(path, filter, options, copy.pipeline(), endPageWrite, outcome);
    if (!options.grey && copy.size() >= outcome.bytesBefore) {
        outcome.imagesReduced = 0;
        return;
    }
    auto file = copy.finish(options.flush);
    outcome.bytesAfter = copy.size();
    outcome.convertInfo =
        ConvertInfo{QFile::decodeName(file->path().c_str()), path, std::move(file)};
}

/// The copy of `source` for `destination`, whole but without its name.
std::unique_ptr<OutputFile> copyFor(const QString &destination, const QString &source, Flush flush,
                                    SystemCalls &calls) {
    auto file = std::make_unique<OutputFile>(destination, calls);
    appendFile(*file, source, calls);
    file->finish(flush);
    return file;
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
        outcome.error = options.stop.stop_requested() ? stopped() : error.reason();
    }
    return outcome;
}

QString compressCompleted(const ConvertInfo &convertInfo, SystemCalls &calls) {
    const QString &destination = convertInfo.destFilePathName;
    try {
        const auto copy = copyFor(destination, convertInfo.tempFilePathName, Flush::Always, calls);
        calls.unlink(QFile::encodeName(destination).constData());
        if (copy->publish(destination, Flush::Always) == OutputFile::Published::NameTaken) {
            return Reasons::tr("Its name was taken by another file");
        }
    } catch (const Error &error) {
        return error.reason();
    }
    return {};
}

void putInPlace(const ConvertInfo &convertInfo, Flush flush, SystemCalls &calls) {
    const QString &destination = convertInfo.destFilePathName;
    copyFor(destination, convertInfo.tempFilePathName, flush, calls)->replace(destination, flush);
}

} // namespace folioforge
