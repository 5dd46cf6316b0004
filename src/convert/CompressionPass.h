#pragma once

#include "convert/ConversionOptions.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace folioforge {

class ConversionObserver;
class PartFile;

/// The hand-over record of the compression pass: the compressed copy and the file it replaces.
struct ConvertInfo {
    QString tempFilePathName; ///< "Temp File Path Name": in the temporary folder; empty for none.
    QString destFilePathName; ///< "Dest File Path Name": the PDF that was compressed.
    std::shared_ptr<const PartFile> part = {}; ///< Lets a signal handler find the copy.
};

/// An image of the document that stays as it is.
struct KeptImage {
    int page = 0;   ///< The first page that draws it, from 1.
    int object = 0; ///< Its object number in the PDF before the pass.
    QString reason; ///< A few words without a full stop.
};

/// What a pass did, for the report.
struct CompressionOutcome {
    /// Nothing where no pass ran; there even when one failed, see compressCompleted().
    std::optional<ConvertInfo> convertInfo;
    QString error; ///< Why there is no compressed copy; empty when there is one.
    qint64 bytesBefore = 0;
    qint64 bytesAfter = 0;
    int imagesReduced = 0;
    std::vector<KeptImage> imagesKept;
};

/// Where the pass finds and puts its files.
struct CompressionPlaces {
    QString bundlePath;      ///< Holds Contents/Resources with the filter files.
    QString temporaryFolder; ///< Gets the compressed copy.
};

/// Rewrites the finished PDF at `path` into the temporary folder through the filter of
/// options.compressIndex, with the passwords and permissions of options.security applied again,
/// and hands over where it stands. The copy is never larger than the PDF, is readable by its owner
/// alone and has its passwords from its first byte on. Reports progress from 50 to 100, page by
/// page. Never throws; when the pass fails there is no temporary file. Index 0 does nothing.
CompressionOutcome compress(const QString &path, const ConversionOptions &options,
                            const CompressionPlaces &places,
                            ConversionObserver *observer = nullptr);

/// What the window does with the hand-over record: the destination gives way to the temporary
/// file. Errors are ignored, so after a failed pass the destination is gone.
void compressCompleted(const ConvertInfo &convertInfo, SystemCalls &calls = SystemCalls::system());

/// What the command line does with it: the destination gives way to the copy in one step, once that
/// stands whole on its disk. Throws Error when it cannot; the destination is then as it was.
void putInPlace(const ConvertInfo &convertInfo, Flush flush,
                SystemCalls &calls = SystemCalls::system());

/// Deletes a file; errors are ignored.
void deleteFile(const QString &path, SystemCalls &calls = SystemCalls::system());

/// Copies `source` to `destination`, which must not exist; errors are ignored.
void copyDestFile(const QString &destination, const QString &source,
                  SystemCalls &calls = SystemCalls::system());

} // namespace folioforge
