// SPDX-License-Identifier: Apache-2.0

// How a document is held against files of which others may have made it.

#include "verify/DocumentVerifier.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "pdf/QpdfErrors.h"
#include "pdf/import/Entries.h"
#include "verify/FoundPictures.h"
#include "verify/PictureCheck.h"
#include "verify/TextMatch.h"

#include <algorithm>
#include <numeric>

namespace folioforge {
namespace {

using Object = QPDFObjectHandle;

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
                verifyPictures(entry, result);
            }
        } catch (const Error &error) {
            requireGoingOn();
            result.keep(PageProof::Differs, error.reason());
            keepRest(entry, end, result);
        }
        return result;
    }

    /// What follows cannot be told apart any more but by its number of pages.
    static void keepRest(const EntryRecord &entry, int end, EntryVerification &result) {
        while (static_cast<int>(result.pages.size()) < entry.pages &&
               result.firstPage + static_cast<int>(result.pages.size()) < end) {
            result.keep(PageProof::Differs);
        }
    }

    /// What comes of a page with a picture.
    struct Finding {
        PageProof proof = PageProof::Differs;
        QString fault;
        Object image = Object::newNull(); ///< Whose pixels are to be looked at.
    };

    void verifyPictures(const EntryRecord &entry, EntryVerification &result) {
        const auto first = static_cast<std::size_t>(result.firstPage);
        const std::size_t there = pages().size() - std::min(first, pages().size());
        std::vector<Finding> findings(std::min(entry.pictures.size(), there));
        for (std::size_t i = 0; i < findings.size(); ++i) {
            requireGoingOn();
            try {
                findings[i] = findingOf(pages()[first + i], entry.pictures[i], result);
            } catch (const Error &error) {
                findings[i].fault = error.reason();
            }
        }
        comparePixels(entry, findings);
        for (const Finding &finding : findings) {
            result.keep(finding.proof, finding.fault);
        }
        if (findings.size() < entry.pictures.size()) {
            result.keep(PageProof::Differs, Reasons::tr("The PDF has fewer pages than the files"));
        }
    }

    Finding findingOf(const SourcePage &page, const PictureRecord &record,
                      EntryVerification &result) {
        const ReadPage read = readContents(checks().contentsOf(page), 0);
        reader().beginAnew();
        if (read.pictures.size() != 1) {
            return {PageProof::Differs, Reasons::tr("it has no picture, or more than one")};
        }
        const DrawnPicture &drawn = read.pictures.front();
        Object turn = ComparedDocument::valueOf(page, "/Rotate");
        constexpr int kFull = 360;
        const int degrees = turn.isInteger() ? turn.getIntValueAsInt() % kFull : 0;
        if (!isOriented(drawn, record.orientation, (degrees + kFull) % kFull)) {
            return {PageProof::Differs, Reasons::tr("its picture is turned otherwise")};
        }
        result.isLaidOutOtherwise = result.isLaidOutOtherwise ||
                                    !frameFault(page, record.page).isEmpty() ||
                                    !placeFault(drawn, record).isEmpty() || !read.strange.empty();
        const Object resources = ComparedDocument::valueOf(page, "/Resources");
        Object image = entry(entry(resources, "/XObject"), '/' + drawn.name);
        const QString fault = imageFault(image, record.image, reader(), checks().profiles());
        if (fault.isEmpty()) {
            return {record.image.isOwnBytes ? PageProof::Bytes : PageProof::Pixels, {}};
        }
        const bool canBeTold = image.isStream() &&
                               isPlainImage(image, record.image, checks().profiles()) &&
                               hasTellingPixels(image, options());
        return {PageProof::Differs, fault, canBeTold ? image : Object::newNull()};
    }

    static bool isOpen(const Finding &finding) { return !Object(finding.image).isNull(); }

    /// Tells more of the pictures of which more is to be told.
    void comparePixels(const EntryRecord &entry, std::vector<Finding> &findings) {
        if (std::ranges::none_of(findings, isOpen)) {
            return;
        }
        try {
            readAgain(entry, findings);
        } catch (const Error &error) {
            requireGoingOn();
            for (Finding &finding : findings) {
                if (isOpen(finding)) {
                    finding.fault = error.reason();
                }
            }
        }
    }

    /// Reads the file again, once for all pictures.
    void readAgain(const EntryRecord &entry, std::vector<Finding> &findings) {
        std::size_t next = 0;
        entry.picturesAgain([&](const PdfImage &source) {
            requireGoingOn();
            const std::size_t index = next++;
            if (index >= findings.size() || !isOpen(findings[index])) {
                return;
            }
            Finding &finding = findings[index];
            finding.proof = proofByPixels(finding.image, source, options());
            finding.image = Object::newNull(); // All is told.
            if (finding.proof != PageProof::Differs) {
                finding.fault.clear();
            }
        });
        if (next < findings.size()) {
            throw Error(Reasons::tr("The file has changed"));
        }
    }

    void verifyText(const EntryRecord &entry, int end, EntryVerification &result) {
        if (hasTraces(entry, result.firstPage)) {
            result.pages.assign(static_cast<std::size_t>(entry.pages), PageProof::Characters);
            for (const TextTrace &page : entry.text.pages) {
                result.missingGlyphs += page.missing;
            }
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
                keepRest(entry, end, result);
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
            const auto page = static_cast<std::size_t>(first) + static_cast<std::size_t>(i);
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
