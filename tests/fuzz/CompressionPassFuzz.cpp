// SPDX-License-Identifier: Apache-2.0

// The compression pass on a PDF of any bytes: a copy that is smaller and has the same pages, or no
// file, and a reason where the pass failed.

#include "FuzzSupport.h"
#include "compress/CompressionPass.h"
#include "compress/QuartzFilter.h"
#include "pdf/import/SourceDocument.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::fuzz;

namespace {

void compressOnce(const QString &source, int pages, bool grey) {
    CompressionOptions options{
        quartzFilterPath(QStringLiteral(FOLIOFORGE_FUZZED_BUNDLE), quartzFilterName(3)),
        QFileInfo(source).path()};
    options.grey = grey;
    const CompressionOutcome outcome = compress(source, options);
    require(grey || outcome.convertInfo.has_value() == (outcome.bytesAfter < outcome.bytesBefore));
    if (!outcome.error.isEmpty()) {
        require(!outcome.convertInfo);
        throw Error(outcome.error);
    }
    if (outcome.convertInfo) {
        require(summarizePDF(outcome.convertInfo->tempFilePathName).pageCount == pages);
    }
}

} // namespace

FUZZ_TARGET(CompressionPass) {
    refuseMessages();
    const MemoryFile source(u"pdf"_s, bytes);
    refuses([&] {
        const PDFSummary summary = summarizePDF(source.path());
        if (summary.pageCount > 0) {
            compressOnce(source.path(), summary.pageCount, bytes.size() % 2 == 1);
        }
    });
}
