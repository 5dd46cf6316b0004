// SPDX-License-Identifier: Apache-2.0

// How a smaller copy of a document is held against the document.

#include "error/Error.h"
#include "error/Reasons.h"
#include "pdf/QpdfErrors.h"
#include "verify/DocumentVerifier.h"
#include "verify/PageComparison.h"

namespace folioforge {
namespace {

/// One of both documents.
class OpenedDocument : public DocumentVerifier {
  public:
    using DocumentVerifier::compared;
    using DocumentVerifier::DocumentVerifier;
    using DocumentVerifier::requireAppearances;
    using DocumentVerifier::requireGoingOn;
    using DocumentVerifier::requireUndamaged;
};

QString comparePages(OpenedDocument &original, OpenedDocument &copy) {
    const std::size_t count = original.compared().pages().size();
    if (copy.compared().pages().size() != count) {
        return Reasons::tr("The PDF has %1 pages instead of %2")
            .arg(QString::number(copy.compared().pages().size()), QString::number(count));
    }
    copy.requireAppearances(original.compared());
    PageComparison comparison(original.compared(), copy.compared(), 0, {},
                              PageComparison::Pictures::Alike);
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
        OpenedDocument opened(original, options);
        OpenedDocument openedCopy(copy, options);
        return comparePages(opened, openedCopy);
    });
}

} // namespace folioforge
