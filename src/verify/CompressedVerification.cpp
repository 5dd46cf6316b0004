// SPDX-License-Identifier: Apache-2.0

// How a smaller copy of a document is held against the document.

#include "error/Error.h"
#include "error/Reasons.h"
#include "pdf/QpdfErrors.h"
#include "verify/DocumentVerifier.h"
#include "verify/PageComparison.h"

namespace folioforge {
namespace {

QString comparePages(DocumentVerifier &original, DocumentVerifier &copy, bool mayBeGrey) {
    const std::size_t count = original.compared().pages().size();
    if (copy.compared().pages().size() != count) {
        return Reasons::tr("The PDF has %1 pages instead of %2")
            .arg(QString::number(copy.compared().pages().size()), QString::number(count));
    }
    copy.requireAppearances(original.compared());
    PageComparison comparison(original.compared(), copy.compared(), 0, {},
                              mayBeGrey ? PageComparison::Pictures::AlikeOrGrey
                                        : PageComparison::Pictures::Alike);
    for (std::size_t i = 0; i < count; ++i) {
        original.requireGoingOn();
        if (const QString fault = comparison.fault(i); !fault.isEmpty()) {
            return Reasons::tr("Page %1 of the smaller PDF is not that of the PDF: %2")
                .arg(QString::number(i + 1), fault);
        }
    }
    copy.requireUndamaged();
    return {};
}

} // namespace

QString copyFault(const WrittenDocument &original, const WrittenDocument &copy,
                  const VerifyOptions &options) {
    return translateQpdfErrors([&] {
        DocumentVerifier opened(original, options);
        DocumentVerifier openedCopy(copy, options);
        return comparePages(opened, openedCopy, options.mayBeGrey);
    });
}

} // namespace folioforge
