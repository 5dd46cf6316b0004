// SPDX-License-Identifier: Apache-2.0

// How a document is held against files of which others may have made it.

#include "verify/DocumentVerifier.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "pdf/ImageEmbedder.h"
#include "pdf/QpdfErrors.h"
#include "pdf/StreamData.h"
#include "pdf/import/Entries.h"
#include "verify/PictureCheck.h"
#include "verify/Pixels.h"
#include "verify/TextMatch.h"

#include <algorithm>
#include <numeric>

namespace folioforge {
namespace {

using Object = QPDFObjectHandle;

/// The pixels of a picture of a file, as a PDF would show them.
std::optional<Pixels> pixelsOfFile(const PdfImage &image, SystemCalls &calls) {
    QPDF document;
    makeEmpty(document);
    StreamData streams(document, std::make_shared<SourceReader>(calls), calls);
    return pixelsOf(ImageEmbedder(document, streams).embed(image));
}

/// Holds pages that others may have made against files.
class FoundVerifier : private DocumentVerifier {
  public:
    using DocumentVerifier::DocumentVerifier;

    std::vector<EntryVerification> verify(const DocumentRecord &record) {
        int first = 0;
        std::vector<EntryVerification> results;
        for (auto entry = record.begin(); entry != record.end(); ++entry) {
            const int needed =
                std::transform_reduce(std::next(entry), record.end(), 0, std::plus<>(),
                                      [](const EntryRecord &later) { return leastPages(later); });
            results.push_back(verify(*entry, first, static_cast<int>(pages().size()) - needed));
            first += static_cast<int>(results.back().pages.size());
        }
        if (first < static_cast<int>(pages().size()) && !results.empty()) {
            results.back().keep(PageProof::Differs, Reasons::tr("it is of none of the files"));
        }
        requireUndamaged();
        return results;
    }

  private:
    static bool isText(const EntryRecord &entry) { return static_cast<bool>(entry.textAgain); }
    /// A text may have more or fewer pages where it is set otherwise.
    static int leastPages(const EntryRecord &entry) {
        return isText(entry) ? std::min(entry.pages, 1) : entry.pages;
    }

    EntryVerification verify(const EntryRecord &entry, int first, int end) {
        EntryVerification result;
        result.firstPage = first;
        try {
            if (entry.source) {
                verifySource(entry, result);
            } else if (isText(entry)) {
                verifyText(entry, end, result);
            } else {
                for (std::size_t i = 0; i < entry.pictures.size(); ++i) {
                    requireGoingOn();
                    verifyPicture(entry, i, result);
                }
            }
        } catch (const Error &error) {
            requireGoingOn();
            result.keep(PageProof::Differs, error.reason());
        }
        return result;
    }

    void verifyPicture(const EntryRecord &entry, std::size_t index, EntryVerification &result) {
        const PictureRecord &record = entry.pictures[index];
        const SourcePage &page = nextPage(result);
        const ReadPage read = readContents(checks().contentsOf(page), 0);
        reader().beginAnew();
        if (read.pictures.size() != 1) {
            result.keep(PageProof::Differs, Reasons::tr("it has no picture, or more than one"));
            return;
        }
        const DrawnPicture &drawn = read.pictures.front();
        Object turn = ComparedDocument::valueOf(page, "/Rotate");
        constexpr int kFull = 360;
        const int degrees = turn.isInteger() ? turn.getIntValueAsInt() % kFull : 0;
        if (!isOriented(drawn, record.orientation, (degrees + kFull) % kFull)) {
            result.keep(PageProof::Differs, Reasons::tr("its picture is turned otherwise"));
            return;
        }
        result.isLaidOutOtherwise = result.isLaidOutOtherwise ||
                                    !frameFault(page, record.page).isEmpty() ||
                                    !placeFault(drawn, record).isEmpty() || !read.strange.empty();
        const Object resources = ComparedDocument::valueOf(page, "/Resources");
        const Object image = entryOf(resources, "/XObject", drawn.name);
        const QString fault = imageFault(image, record.image, reader());
        if (fault.isEmpty()) {
            result.keep(record.image.isOwnBytes ? PageProof::Bytes : PageProof::Pixels);
        } else {
            comparePixels(image, entry, index, fault, result);
        }
    }

    static Object entryOf(const Object &resources, const char *kind, const std::string &name) {
        return ::folioforge::entry(::folioforge::entry(resources, kind), '/' + name);
    }

    void comparePixels(const Object &image, const EntryRecord &entry, std::size_t index,
                       const QString &fault, EntryVerification &result) {
        if (!Object(image).isStream() || !isPlainImage(image, entry.pictures[index].image)) {
            result.keep(PageProof::Differs, fault);
            return;
        }
        const PdfImage source = entry.pictureAgain(index);
        const auto found = pixelsOf(image);
        const auto wanted = pixelsOfFile(source, options().calls);
        const Object mask = Object(image).getDict().getKey("/SMask");
        const bool isSameMask =
            source.softMask ? Object(mask).isStream() &&
                                  pixelsOf(mask) == pixelsOfFile(*source.softMask, options().calls)
                            : Object(mask).isNull();
        // Readers of JPEG 2000 differ in what they pass over.
        const bool isJpx = Object(image).getDict().getKey("/Filter").isNameAndEquals("/JPXDecode");
        if (!found || !wanted || (isJpx && !options().mayReduce)) {
            result.keep(PageProof::Differs, fault);
        } else if (*found == *wanted && isSameMask) {
            result.keep(PageProof::Pixels);
        } else if (options().mayReduce && isReduced(*found, *wanted) &&
                   (options().mayBeGrey || found->channels == wanted->channels)) {
            result.keep(PageProof::Likeness);
        } else {
            result.keep(PageProof::Differs, fault);
        }
    }

    void verifyText(const EntryRecord &entry, int end, EntryVerification &result) {
        if (hasTraces(entry, result.firstPage)) {
            result.pages.assign(static_cast<std::size_t>(entry.pages), PageProof::Characters);
            return;
        }
        result.isLaidOutOtherwise = true;
        TextMatch match(entry.textAgain());
        const auto goesOn = [&] {
            const int next = result.firstPage + static_cast<int>(result.pages.size());
            return next < end &&
                   (!match.isDone() || result.pages.empty() || isBlank(nextPage(result)));
        };
        while (goesOn()) {
            requireGoingOn();
            const bool matches =
                match.take(readContents(checks().contentsOf(nextPage(result)), 0).text);
            result.keep(PageProof::Characters,
                        matches ? QString()
                                : Reasons::tr("its characters are not those of the text"));
            if (!matches) {
                // What follows cannot be told apart any more but by its number of pages.
                while (static_cast<int>(result.pages.size()) < entry.pages &&
                       result.firstPage + static_cast<int>(result.pages.size()) < end) {
                    result.keep(PageProof::Differs);
                }
                return;
            }
        }
        if (!match.isDone()) {
            result.keep(PageProof::Differs, Reasons::tr("the text goes on and the PDF does not"));
        }
    }

    /// Whether the next pages are those that would be drawn now.
    bool hasTraces(const EntryRecord &entry, int first) {
        for (int i = 0; i < entry.pages; ++i) {
            requireGoingOn();
            const auto page = static_cast<std::size_t>(first + i);
            if (page >= pages().size() || !frameFault(pages()[page], entry.text.page).isEmpty() ||
                !textFault(checks().contentsOf(pages()[page]), entry.text,
                           static_cast<std::size_t>(i))
                     .isEmpty()) {
                return false;
            }
        }
        return true;
    }

    bool isBlank(const SourcePage &page) {
        const ReadPage read = readContents(checks().contentsOf(page), 0);
        return read.pictures.empty() && TextMatch::charactersOf(read.text).isEmpty();
    }
};

} // namespace

std::vector<EntryVerification> verifyFoundDocument(const WrittenDocument &document,
                                                   const DocumentRecord &record,
                                                   const VerifyOptions &options) {
    return translateQpdfErrors([&] { return FoundVerifier(document, options).verify(record); });
}

} // namespace folioforge
