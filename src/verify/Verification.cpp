// SPDX-License-Identifier: Apache-2.0

#include "verify/Verification.h"

#include "error/Reasons.h"
#include "files/Checksum.h"
#include "image/Parallel.h"
#include "pdf/QpdfErrors.h"
#include "verify/DocumentVerifier.h"

#include <QStringList>

#include <deque>
#include <future>

namespace folioforge {
namespace {

/// The bytes that were read are those that were written. Throws Error, also once `stop` asks for
/// it.
void requireSameBytes(const WrittenDocument &document, const std::stop_token &stop) {
    constexpr std::size_t kPiece = 1 << 18; // It stays in the processor's cache.
    std::vector<char> piece(kPiece);
    std::uint32_t checksum = 0;
    for (qint64 at = 0; at < document.size;) {
        requireNoStop(stop);
        const qint64 got = document.readBytes(at, piece);
        if (got <= 0) {
            break;
        }
        checksum = crcWith(checksum, {piece.data(), got});
        at += got;
    }
    if (checksum != document.checksum) {
        throw Error(Reasons::tr("The PDF on the disk is not what was written"));
    }
}

/// Holds pages that were drawn and copied here against their records.
class WrittenVerifier : private DocumentVerifier {
  public:
    using DocumentVerifier::DocumentVerifier;

    std::vector<EntryVerification> verify(const DocumentRecord &record) {
        requireAllPages(record);
        std::vector<EntryVerification> results;
        for (const EntryRecord &entry : record) {
            results.push_back(verify(entry));
        }
        requireUndamaged();
        return results;
    }

  private:
    void requireAllPages(const DocumentRecord &record) {
        std::size_t wanted = 0;
        for (const EntryRecord &entry : record) {
            wanted += static_cast<std::size_t>(entry.pages);
        }
        if (wanted != pages().size()) {
            throw Error(Reasons::tr("The PDF has %1 pages instead of %2")
                            .arg(QString::number(pages().size()), QString::number(wanted)));
        }
    }

    EntryVerification verify(const EntryRecord &entry) {
        EntryVerification result;
        result.firstPage = entry.firstPage;
        if (entry.source) {
            verifySource(entry, result);
            return result;
        }
        if (entry.pictures.empty()) {
            verifyText(entry, result);
        }
        for (const PictureRecord &picture : entry.pictures) {
            requireGoingOn();
            verifyPicture(picture, result);
        }
        while (static_cast<int>(result.pages.size()) < entry.pages) {
            result.keep(PageProof::Differs, Reasons::tr("it is no page of the source"));
        }
        return result;
    }

    void verifyPicture(const PictureRecord &record, EntryVerification &result) {
        reader().beginAnew();
        const QString fault = checks().pictureFault(nextPage(result), record, reader());
        result.keep(record.image.isOwnBytes ? PageProof::Bytes : PageProof::Pixels, fault);
    }

    /// Pages of a text that another core reads while the next ones are taken out of the document.
    struct Batch {
        std::size_t first = 0; ///< Of the text.
        std::vector<PageContents> pages;
        QStringList frames; ///< What frameFault() says of them.
    };

    void verifyText(const EntryRecord &entry, EntryVerification &result) {
        constexpr std::size_t kBatch = 32;
        constexpr std::size_t kMaxAhead = 2;
        const auto count = std::min(static_cast<std::size_t>(entry.pages), entry.text.pages.size());
        std::deque<std::future<QStringList>> reading;
        for (std::size_t first = 0; first < count; first += kBatch) {
            if (reading.size() == kMaxAhead) {
                keepFirst(reading, result);
            }
            const auto batch = std::make_shared<const Batch>(
                takeBatch(entry, first, std::min(kBatch, count - first)));
            reading.push_back(
                runAsync([batch, &text = entry.text] { return faultsOf(*batch, text); }));
        }
        while (!reading.empty()) {
            keepFirst(reading, result);
        }
        for (const TextTrace &page : entry.text.pages) {
            result.missingGlyphs += page.missing;
        }
    }

    Batch takeBatch(const EntryRecord &entry, std::size_t first, std::size_t count) {
        requireGoingOn();
        Batch batch{first, {}, {}};
        for (std::size_t i = first; i < first + count; ++i) {
            const SourcePage &page = pages().at(static_cast<std::size_t>(entry.firstPage) + i);
            batch.frames += frameFault(page, entry.text.page);
            batch.pages.push_back(checks().contentsOf(page));
        }
        return batch;
    }

    static QStringList faultsOf(const Batch &batch, const TextRecord &text) {
        QStringList faults = batch.frames;
        for (qsizetype i = 0; i < faults.size(); ++i) {
            const auto index = static_cast<std::size_t>(i);
            if (faults[i].isEmpty()) {
                faults[i] = textFault(batch.pages[index], text, batch.first + index);
            }
        }
        return faults;
    }

    static void keepFirst(std::deque<std::future<QStringList>> &reading,
                          EntryVerification &result) {
        const QStringList faults = reading.front().get();
        reading.pop_front();
        for (const QString &fault : faults) {
            result.keep(PageProof::Characters, fault);
        }
    }
};

} // namespace

void EntryVerification::keep(PageProof proof, const QString &fault) {
    constexpr std::size_t kMaxFaults = 100;
    pages.push_back(fault.isEmpty() ? proof : PageProof::Differs);
    if (!fault.isEmpty() && faults.size() < kMaxFaults) {
        faults.push_back({firstPage + static_cast<int>(pages.size()), fault});
    }
}

QString EntryVerification::reason() const {
    return holds() ? QString()
                   : Reasons::tr("Page %1 of the PDF is not its source: %2")
                         .arg(QString::number(faults.front().page), faults.front().reason);
}

std::vector<EntryVerification> verifyDocument(const WrittenDocument &document,
                                              const DocumentRecord &record,
                                              const VerifyOptions &options) {
    auto sameBytes = runAsync(document.checksum ? document.size : 0, [&document, &options] {
        if (document.checksum) {
            requireSameBytes(document, options.stop);
        }
    });
    try {
        auto results =
            translateQpdfErrors([&] { return WrittenVerifier(document, options).verify(record); });
        sameBytes.get();
        return results;
    } catch (const Error &) {
        if (sameBytes.valid()) {
            sameBytes.get(); // Other bytes are the reason of all that follows from them.
        }
        throw;
    }
}

} // namespace folioforge
