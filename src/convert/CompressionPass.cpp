#include "convert/CompressionPass.h"

#include "compress/DuplicateStreams.h"
#include "compress/FilterChains.h"
#include "compress/ImagePlan.h"
#include "compress/ImageUses.h"
#include "compress/QuartzFilter.h"
#include "compress/ReducedStreams.h"
#include "compress/TemporaryCopy.h"
#include "convert/Conversion.h"
#include "error/Error.h"
#include "files/OutputFile.h"
#include "pdf/DocumentWriter.h"
#include "pdf/Password.h"
#include "pdf/QpdfBorder.h"
#include "pdf/import/SourceInput.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <optional>
#include <utility>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// Turns the writer's percentage into the pages written and reports each page.
class PageProgress : public QPDFWriter::ProgressReporter {
  public:
    PageProgress(ConversionObserver *observer, int pages, const OutputPipeline &output)
        : m_observer(observer)
        , m_pages(pages)
        , m_output(output) {}

    void reportProgress(int percent) override {
        m_output.throwFailure();
        const int written = percent * m_pages / 100;
        while (m_observer && m_written < written) {
            ++m_written;
            m_observer->progressChanged(
                static_cast<float>(m_written) / static_cast<float>(m_pages) * 50.0F + 50.0F);
        }
    }

  private:
    ConversionObserver *m_observer;
    int m_pages;
    const OutputPipeline &m_output;
    int m_written = 0;
};

void unlock(QPDF &document, const std::shared_ptr<SourceInput> &input,
            const Encryption *encryption) {
    // A user password alone is the owner's too, so the owner's always opens.
    const QByteArray password = encryption ? preparedPassword(encryption->ownerPassword.isEmpty()
                                                                  ? encryption->userPassword
                                                                  : encryption->ownerPassword)
                                           : QByteArray();
    document.setSuppressWarnings(true);
    document.processInputSource(input, password.isEmpty() ? nullptr : password.constData());
}

/// For each stream of a document of `size` bytes, beyond which none can be.
void requireRoomForStreams(QPDF &document, qsizetype size) {
    qsizetype longest = 0;
    for (QPDFObjectHandle &object : document.getAllObjects()) {
        if (object.isStream()) {
            longest = std::max(longest, statedLength(object.getDict().getKey("/Length")));
        }
    }
    requireRoomForStream(std::min(longest, size));
}

void write(QPDF &document, OutputPipeline &output, const Encryption *encryption,
           ConversionObserver *observer) {
    keepFilterChains(document);
    QPDFWriter writer(document);
    writer.setOutputPipeline(&output);
    writer.setObjectStreamMode(qpdf_o_generate);
    writer.setCompressStreams(true);
    writer.setDecodeLevel(qpdf_dl_generalized);
    if (encryption) {
        applyEncryption(writer, *encryption);
    } else {
        writer.setDeterministicID(true); // The same document is compressed the same.
    }
    const auto pages = static_cast<int>(document.getAllPages().size());
    writer.registerProgressReporter(std::make_shared<PageProgress>(observer, pages, output));
    writer.write();
    output.throwFailure();
}

void report(std::vector<LeftImage> left, CompressionOutcome &outcome) {
    std::stable_sort(left.begin(), left.end(),
                     [](const auto &one, const auto &other) { return one.page < other.page; });
    for (LeftImage &image : left) {
        outcome.imagesKept.push_back({image.page, image.object, std::move(image.reason)});
    }
}

void runPass(const QString &path, const QuartzFilter &filter, const ConversionOptions &options,
             OutputPipeline &output, ConversionObserver *observer, CompressionOutcome &outcome) {
    const auto encryption = encryptionFor(options.security);
    const auto reader = std::make_shared<SourceReader>(options.calls);
    const auto input =
        std::make_shared<SourceInput>(SourceFile::examine(path), reader, SourceInput::Table::Shown);
    QPDF document;
    outcome.imagesReduced = withAllObjects(document, *reader, [&] {
        unlock(document, input, encryption.get());
        mergeDuplicateStreams(document);
        ImagePlan plan = planImages(document, findImageUses(document), filter);
        const auto streams = ReducedStreams::install(std::move(plan.planned));
        requireRoomForStreams(document, QFileInfo(path).size());
        write(document, output, encryption.get(), observer);
        plan.left.insert(plan.left.end(), streams->left().begin(), streams->left().end());
        report(std::move(plan.left), outcome);
        return streams->done();
    });
    reader->finish();
}

QString filterFile(const ConversionOptions &options, const CompressionPlaces &places) {
    const QString name = quartzFilterName(options.compressIndex);
    if (name.isEmpty()) {
        throw Error(u"There is no compress method %1"_s.arg(options.compressIndex));
    }
    return quartzFilterPath(places.bundlePath, name);
}

/// Makes the copy of the document at `path`.
std::shared_ptr<const PartFile> makeCopy(const QString &path, const QuartzFilter &filter,
                                         const ConversionOptions &options,
                                         ConversionObserver *observer, const QString &folder,
                                         CompressionOutcome &outcome) {
    std::optional<TemporaryCopy> copy(std::in_place, folder, path, options.calls);
    runPass(path, filter, options, copy->pipeline(), observer, outcome);
    if (copy->size() >= outcome.bytesBefore) {
        copy.emplace(folder, path, options.calls);
        copy->takeSource();
        outcome.imagesReduced = 0;
    }
    auto part = copy->finish();
    outcome.bytesAfter = copy->size();
    return part;
}

void compressInto(const QString &path, const ConversionOptions &options,
                  ConversionObserver *observer, const CompressionPlaces &places,
                  CompressionOutcome &outcome) {
    const QuartzFilter filter = readQuartzFilter(filterFile(options, places));
    // From here on there is something to hand over, even where no copy comes of it.
    outcome.convertInfo = ConvertInfo{{}, path};
    auto part = makeCopy(path, filter, options, observer, places.temporaryFolder, outcome);
    outcome.convertInfo->tempFilePathName = QFile::decodeName(part->path().c_str());
    outcome.convertInfo->part = std::move(part);
}

/// The copy of `source` for `destination`, whole but without its name.
std::unique_ptr<OutputFile> copyFor(const QString &destination, const QString &source, Flush flush,
                                    SystemCalls &calls) {
    auto file = std::make_unique<OutputFile>(destination, calls);
    appendFile(*file, source);
    file->finish(flush);
    return file;
}

} // namespace

CompressionOutcome compress(const QString &path, const ConversionOptions &options,
                            const CompressionPlaces &places, ConversionObserver *observer) {
    CompressionOutcome outcome;
    if (options.compressIndex == 0) {
        return outcome;
    }
    outcome.bytesBefore = QFileInfo(path).size();
    outcome.bytesAfter = outcome.bytesBefore;
    try {
        atQpdfBorder([&] { compressInto(path, options, observer, places, outcome); });
    } catch (const Error &error) {
        outcome.error = error.reason();
    }
    return outcome;
}

void compressCompleted(const ConvertInfo &convertInfo, SystemCalls &calls) {
    deleteFile(convertInfo.destFilePathName, calls);
    if (!convertInfo.tempFilePathName.isEmpty()) {
        copyDestFile(convertInfo.destFilePathName, convertInfo.tempFilePathName, calls);
        deleteFile(convertInfo.tempFilePathName, calls);
    }
}

void putInPlace(const ConvertInfo &convertInfo, Flush flush, SystemCalls &calls) {
    const QString &destination = convertInfo.destFilePathName;
    const QString &copy = convertInfo.tempFilePathName;
    if (copy.isEmpty()) {
        throw Error(u"There is no compressed copy"_s);
    }
    try {
        copyFor(destination, copy, flush, calls)->replace(destination, flush);
    } catch (const Error &) {
        deleteFile(copy, calls);
        throw;
    }
    deleteFile(copy, calls);
}

void deleteFile(const QString &path, SystemCalls &calls) {
    calls.unlink(QFile::encodeName(path).constData());
}

void copyDestFile(const QString &destination, const QString &source, SystemCalls &calls) {
    try {
        copyFor(destination, source, Flush::Always, calls)->publish(destination, Flush::Always);
    } catch (const Error &) {
        return; // Nobody hears of it: the window's run goes on whatever happens to one file.
    }
}

} // namespace folioforge
