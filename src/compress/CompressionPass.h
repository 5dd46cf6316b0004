// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "compress/QuartzFilter.h"
#include "files/OutputFile.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

namespace folioforge {

struct Encryption;
class TemporaryFile;

/// The hand-over record of the compression pass: the compressed copy and the file it replaces. The
/// copy is removed with the last record of it.
struct ConvertInfo {
    QString tempFilePathName; ///< "Temp File Path Name": whole, in the temporary folder.
    QString destFilePathName; ///< "Dest File Path Name": the PDF that was compressed.
    std::shared_ptr<const TemporaryFile> copy;
};

/// An image of the document that stays as it is.
struct KeptImage {
    int page = 0;   ///< The first page that draws it, from 1.
    int object = 0; ///< Its object number in the PDF before the pass.
    QString reason; ///< A few words without a full stop.
};

/// What a pass did, for the report.
struct CompressionOutcome {
    /// Nothing where the pass failed or made nothing smaller: the PDF stays as it is.
    std::optional<ConvertInfo> convertInfo;
    QString error; ///< Why the pass failed; empty when it did not.
    qint64 bytesBefore = 0;
    qint64 bytesAfter = 0;
    int imagesReduced = 0;
    std::vector<KeptImage> imagesKept;
};

/// What one pass works with.
struct CompressionOptions {
    QString filterFile; ///< The Quartz filter that the document goes through, without `filter`.
    QString temporaryFolder; ///< Gets the compressed copy.
    /// The passwords and permissions that the document has and the copy gets; null for none.
    std::shared_ptr<const Encryption> encryption = {};
    /// What the document is read and the copy is written through.
    std::reference_wrapper<SystemCalls> calls = SystemCalls::system();
    Flush flush = Flush::Never; ///< Whether the copy is brought to its disk.
    std::optional<QuartzFilter> filter = {};
    bool grey = false;         ///< Pictures in colour become grey, even where nothing gets smaller.
    std::stop_token stop = {}; ///< Once it is requested, the pass fails at its next read or write.
};

/// Called when a page of the copy is written; `pageIndex` counts from 0.
using EndPageWrite = std::function<void(int pageIndex, int pageCount)>;

/// Rewrites the finished PDF at `path` into the temporary folder and hands over where the copy
/// stands, if it is smaller than the PDF. The copy is readable by its owner alone and has its
/// passwords from its first byte on. Never throws; where nothing is handed over there is no
/// temporary file.
CompressionOutcome compress(const QString &path, const CompressionOptions &options,
                            const EndPageWrite &endPageWrite = {});

/// What is done with the hand-over record: the destination gives way to the copy in one step, once
/// that stands whole on its disk. Throws Error when it cannot; the destination is then as it was.
void putInPlace(const ConvertInfo &convertInfo, Flush flush,
                SystemCalls &calls = SystemCalls::system());

} // namespace folioforge
