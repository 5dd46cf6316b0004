// SPDX-License-Identifier: Apache-2.0

// Any bytes as a PDF that is held against a text and against itself.

#include "FuzzSupport.h"
#include "convert/Conversion.h"

#include <array>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::fuzz;

FUZZ_TARGET(VerifyFound) {
    refuseMessages();
    constexpr std::array<std::uint8_t, 5> kWords{'w', 'o', 'r', 'd', 's'};
    const MemoryFile file(u"pdf"_s, bytes);
    const MemoryFile text(u"txt"_s, kWords);
    const PDFFileInfo words(text.path(), SourceReading::WhenWritten);
    const PDFFileInfo pdf(file.path(), SourceReading::WhenWritten);
    ConversionOptions options;
    options.merge = true;
    options.dryRun = true;
    options.verifyOnly = file.path();
    for (const PDFFileInfo *entry : {&words, &pdf}) {
        const std::array<const PDFFileInfo *, 1> entries{entry};
        const PDFOutcome outcome = createPDF(entries, file.path(), options);
        for (const EntryOutcome &result : outcome.entries) {
            require(result.written || !result.reason.isEmpty());
        }
    }
}
