#include "convert/CompressionPass.h"

#include "convert/Conversion.h"
#include "convert/QuartzFilter.h"
#include "convert/compress/DuplicateStreams.h"
#include "convert/compress/ImagePlan.h"
#include "convert/compress/ImageUses.h"
#include "convert/compress/ReducedStreams.h"
#include "convert/compress/TemporaryCopy.h"
#include "error/Error.h"
#include "pdf/DocumentWriter.h"
#include "pdf/OutputFile.h"
#include "pdf/Password.h"
#include "pdf/QpdfBorder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

namespace folioforge {

namespace {

/// Turns the writer's percentage into the pages written and reports each page.
class PageProgress : public QPDFWriter::ProgressReporter {
  public:
    PageProgress(ConversionObserver *observer, int pages, const TemporaryCopy &copy)
        : m_observer(observer)
        , m_pages(pages)
        , m_copy(copy) {}

    void reportProgress(int percent) override {
        m_copy.throwFailure();
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
    const TemporaryCopy &m_copy;
    int m_written = 0;
};

void unlock(QPDF &document, const QString &path, const Encryption *encryption) {
    // A user password alone is the owner's too, so the owner's always opens.
    const QByteArray password = encryption ? preparedPassword(encryption->ownerPassword.isEmpty()
                                                                  ? encryption->userPassword
                                                                  : encryption->ownerPassword)
                                           : QByteArray();
    document.setSuppressWarnings(true);
    document.processFile(QFile::encodeName(path).constData(),
                         password.isEmpty() ? nullptr : password.constData());
}

void write(QPDF &document, TemporaryCopy &copy, const Encryption *encryption,
           ConversionObserver *observer) {
    QPDFWriter writer(document);
    writer.setOutputPipeline(&copy.pipeline());
    writer.setObjectStreamMode(qpdf_o_generate);
    writer.setCompressStreams(true);
    writer.setDecodeLevel(qpdf_dl_generalized);
    if (encryption) {
        applyEncryption(writer, *encryption);
    }
    const auto pages = static_cast<int>(document.getAllPages().size());
    writer.registerProgressReporter(std::make_shared<PageProgress>(observer, pages, copy));
    writer.write();
    copy.throwFailure();
}

void report(std::vector<LeftImage> left, CompressionOutcome &outcome) {
    std::stable_sort(left.begin(), left.end(),
                     [](const auto &one, const auto &other) { return one.page < other.page; });
    for (LeftImage &image : left) {
        outcome.imagesKept.push_back({image.page, image.object, std::move(image.reason)});
    }
}

void runPass(const QString &path, const QuartzFilter &filter, const Encryption *encryption,
             TemporaryCopy &copy, ConversionObserver *observer, CompressionOutcome &outcome) {
    QPDF document;
    unlock(document, path, encryption);
    mergeDuplicateStreams(document);
    ImagePlan plan = planImages(document, findImageUses(document), filter);
    const auto streams = ReducedStreams::install(std::move(plan.planned));
    write(document, copy, encryption, observer);
    outcome.imagesReduced = streams->done();
    plan.left.insert(plan.left.end(), streams->left().begin(), streams->left().end());
    report(std::move(plan.left), outcome);
}

QString filterFile(const ConversionOptions &options, const CompressionPlaces &places) {
    const QString name = quartzFilterName(options.compressIndex);
    if (name.isEmpty()) {
        throw Error(QStringLiteral("There is no compress method %1").arg(options.compressIndex));
    }
    return quartzFilterPath(places.bundlePath, name);
}

void compressInto(const QString &path, const ConversionOptions &options,
                  ConversionObserver *observer, const CompressionPlaces &places,
                  CompressionOutcome &outcome) {
    const QuartzFilter filter = readQuartzFilter(filterFile(options, places));
    // From here on there is something to hand over, even where no copy comes of it.
    outcome.convertInfo = ConvertInfo{
        QStringLiteral("%1/%2").arg(places.temporaryFolder, QFileInfo(path).fileName()), path};
    TemporaryCopy copy(places.temporaryFolder, path);
    outcome.convertInfo->tempFilePathName = copy.path();
    const auto encryption = encryptionFor(options.security);
    runPass(path, filter, encryption.get(), copy, observer, outcome);
    if (copy.size() >= outcome.bytesBefore) {
        copy.becomeCopyOf(path);
        outcome.imagesReduced = 0;
    }
    copy.finish();
    outcome.bytesAfter = copy.size();
}

/// The copy of `source` for `destination`, whole but without its name.
std::unique_ptr<OutputFile> copyFor(const QString &destination, const QString &source,
                                    Flush flush) {
    QFile from(source);
    if (!from.open(QIODevice::ReadOnly)) {
        throw Error(QStringLiteral("Cannot read %1: %2").arg(source, from.errorString()));
    }
    auto file = std::make_unique<OutputFile>(destination);
    constexpr std::size_t kBlock = 1 << 16;
    std::array<char, kBlock> block{};
    qint64 count = 0;
    while ((count = from.read(block.data(), block.size())) > 0) {
        file->write({block.data(), static_cast<std::size_t>(count)});
    }
    if (count < 0) {
        throw Error(QStringLiteral("Cannot read %1: %2").arg(source, from.errorString()));
    }
    file->finish(flush);
    return file;
}

void publish(OutputFile &file, const QString &destination, Flush flush) {
    if (file.publish(destination, flush) == OutputFile::Published::NameTaken) {
        throw Error(QStringLiteral("Cannot replace %1").arg(destination));
    }
}

} // namespace

CompressionPlaces CompressionPlaces::ofApplication() {
    const QDir programs(QCoreApplication::applicationDirPath());
    return {QDir::cleanPath(programs.filePath(QStringLiteral("../.."))), QDir::tempPath()};
}

CompressionOutcome compress(const QString &path, const ConversionOptions &options,
                            ConversionObserver *observer, const CompressionPlaces &places) {
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

void compressCompleted(const ConvertInfo &convertInfo) {
    deleteFile(convertInfo.destFilePathName);
    copyDestFile(convertInfo.destFilePathName, convertInfo.tempFilePathName);
    deleteFile(convertInfo.tempFilePathName);
}

void putInPlace(const ConvertInfo &convertInfo, Flush flush) {
    const QString &destination = convertInfo.destFilePathName;
    try {
        const auto file = copyFor(destination, convertInfo.tempFilePathName, flush);
        deleteFile(destination);
        publish(*file, destination, flush);
    } catch (const Error &) {
        deleteFile(convertInfo.tempFilePathName);
        throw;
    }
    deleteFile(convertInfo.tempFilePathName);
}

void deleteFile(const QString &path) {
    QFile::remove(path);
}

void copyDestFile(const QString &destination, const QString &source) {
    try {
        publish(*copyFor(destination, source, Flush::Always), destination, Flush::Always);
    } catch (const Error &) {
        return; // Nobody hears of it: the window's run goes on whatever happens to one file.
    }
}

} // namespace folioforge
