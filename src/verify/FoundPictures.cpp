// SPDX-License-Identifier: Apache-2.0

#include "verify/FoundPictures.h"

#include "pdf/ImageEmbedder.h"
#include "pdf/QpdfErrors.h"
#include "pdf/StreamData.h"
#include "verify/Pixels.h"

#include <qpdf/QPDF.hh>

#include <memory>
#include <optional>

namespace folioforge {
namespace {

/// The pixels of a picture of a file, as a PDF would show them.
std::optional<Pixels> pixelsOfFile(const PdfImage &image, SystemCalls &calls) {
    QPDF document;
    makeEmpty(document);
    StreamData streams(document, std::make_shared<SourceReader>(calls), calls);
    return pixelsOf(ImageEmbedder(document, streams).embed(image));
}

PageProof proofOf(const QPDFObjectHandle &image, const PdfImage &source, bool mayBeGrey,
                  const VerifyOptions &options) {
    const auto found = pixelsOf(image);
    const auto wanted = pixelsOfFile(source, options.calls);
    if (!found || !wanted) {
        return PageProof::Differs;
    }
    if (*found == *wanted) {
        return PageProof::Pixels;
    }
    return options.mayReduce && isReduced(*found, *wanted, mayBeGrey) ? PageProof::Likeness
                                                                      : PageProof::Differs;
}

} // namespace

bool hasTellingPixels(QPDFObjectHandle image, const VerifyOptions &options) {
    // Readers of JPEG 2000 differ in what they pass over.
    return options.mayReduce || !image.getDict().getKey("/Filter").isNameAndEquals("/JPXDecode");
}

PageProof proofByPixels(QPDFObjectHandle image, const PdfImage &source,
                        const VerifyOptions &options) {
    QPDFObjectHandle mask = image.getDict().getKey("/SMask");
    const PageProof proof = proofOf(image, source, options.mayBeGrey, options);
    if (!source.softMask) {
        return mask.isNull() ? proof : PageProof::Differs;
    }
    if (!mask.isStream() || proof == PageProof::Differs) {
        return PageProof::Differs;
    }
    const PageProof ofMask = proofOf(mask, *source.softMask, false, options);
    return ofMask == PageProof::Pixels ? proof : ofMask;
}

} // namespace folioforge
