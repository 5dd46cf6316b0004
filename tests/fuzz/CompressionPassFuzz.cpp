// SPDX-License-Identifier: Apache-2.0

// The compression pass on a PDF of any bytes, as it is and with pictures that become grey: a copy
// that has the same pages and is smaller, which it need not be in grey; or no file, and a reason
// where the pass failed.

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
    require(outcome.convertInfo.has_value() ==
            (grey ? outcome.error.isEmpty() : outcome.bytesAfter < outcome.bytesBefore));
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
    for (const bool grey : {false, true}) {
        refuses([&] {
            const PDFSummary summary = summarizePDF(source.path());
            if (summary.pageCount > 0) {
                compressOnce(source.path(), summary.pageCount, grey);
            }
        });
    }
}
