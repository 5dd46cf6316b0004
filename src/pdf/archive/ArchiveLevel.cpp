// SPDX-License-Identifier: Apache-2.0

#include "pdf/archive/ArchiveLevel.h"

#include "error/Reasons.h"
#include "image/LimitedPicture.h"

using namespace Qt::StringLiterals;

namespace folioforge {

Claims claimsOf(ArchiveLevel level) {
    switch (level) {
    case ArchiveLevel::PdfA1b:
        return {u"1"_s, u"B"_s, {}};
    case ArchiveLevel::PdfA2u:
        return {u"2"_s, u"U"_s, {}};
    case ArchiveLevel::PdfA2a:
        return {u"2"_s, u"A"_s, {}};
    case ArchiveLevel::PdfA3u:
        return {u"3"_s, u"U"_s, {}};
    case ArchiveLevel::PdfA3a:
        break;
    }
    return {u"3"_s, u"A"_s, {}};
}

int partOf(ArchiveLevel level) {
    return claimsOf(level).pdfA.toInt();
}

/// ISO 19005-1 stands on PDF 1.4, whose readers know neither opacity nor JPEG 2000.
PictureLimits pictureLimitsOf(ArchiveLevel level) {
    return partOf(level) == 1 ? PictureLimits{false, false, 8, 2} : PictureLimits{};
}

bool isTagged(ArchiveLevel level) {
    return claimsOf(level).conformance == u"A";
}

QString reasonAgainst(const Claims &claims, ArchiveLevel level, bool hasFiles) {
    const Claims wanted = claimsOf(level);
    if (claims.pdfA.isEmpty()) {
        return Reasons::tr("it does not say that it is PDF/A");
    }
    // A stands above U, and U above B. Part 3 allows all that part 2 does, save that files have to
    // be described; of part 1 neither can be said.
    const bool isPart =
        claims.pdfA == wanted.pdfA || (claims.pdfA == u"2" && wanted.pdfA == u"3" && !hasFiles);
    const QString levels = u"BUA"_s;
    const bool isKnown = claims.conformance.size() == 1 && levels.contains(claims.conformance);
    const bool isEnough =
        isKnown && levels.indexOf(claims.conformance) >= levels.indexOf(wanted.conformance);
    return isPart && isEnough ? QString()
                              : Reasons::tr("it says that it is %1, not %2")
                                    .arg(claims.pdfAName(), wanted.pdfAName());
}

} // namespace folioforge
