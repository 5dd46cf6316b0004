// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/SourceDamage.h"

#include "error/Reasons.h"
#include "pdf/QpdfErrors.h"

#include <qpdf/QPDF.hh>

#include <QStringList>

#include <algorithm>

namespace folioforge {

namespace {

/// "3" or "3, 5, 7 and 12 more".
QString inWords(const std::set<std::size_t> &pages) {
    constexpr qsizetype kNamed = 5;
    QStringList named;
    for (auto page = pages.begin(); page != pages.end() && named.size() < kNamed; ++page) {
        named += QString::number(*page);
    }
    const QString text = Reasons::listed(named);
    const auto others = static_cast<int>(static_cast<qsizetype>(pages.size()) - named.size());
    return others == 0 ? text : Reasons::tr("%1 and %n more", nullptr, others).arg(text);
}

} // namespace

Warnings missingPages(const SourcePages &pages) {
    const auto read = static_cast<long long>(pages.pages.size());
    const auto unreadable = static_cast<long long>(pages.unreadable.size());
    const long long total = pages.stated.value_or(read + unreadable);
    if (read > total) {
        return {
            {WarningCode::PdfRepaired,
             Reasons::tr("The document states %1 pages, and %2 were found").arg(total).arg(read)}};
    }
    if (read == total) {
        if (pages.stated || read == 0) {
            return {};
        }
        return {
            {WarningCode::PdfRepaired,
             Reasons::tr("The document does not state its pages, and %1 were found").arg(read)}};
    }
    const QString text =
        unreadable > 0
            ? Reasons::tr("%1 of %2 pages could be read, page %3 is the first that is missing")
                  .arg(read)
                  .arg(total)
                  .arg(pages.unreadable.front() + 1)
            : Reasons::tr("%1 of %2 pages could be read").arg(read).arg(total);
    return {{WarningCode::PdfPagesLost, text}};
}

Warnings damagedPages(const std::set<std::size_t> &pages) {
    if (pages.empty()) {
        return {};
    }
    return {{WarningCode::PdfPagesLost,
             Reasons::tr("What stands on page %1 is damaged and may lack something")
                 .arg(inWords(pages))}};
}

Warnings repairs(QPDF &source) {
    const std::vector<QPDFExc> faults = faultsOf(source);
    const auto first = std::ranges::find_if(faults, isFault);
    if (first == faults.end()) {
        return {};
    }
    const auto number = std::count_if(first, faults.end(), isFault);
    const QString text =
        number == 1
            ? Reasons::tr("The document is damaged and was repaired: %1")
            : Reasons::tr("The document is damaged and was repaired in %n places, the first: %1",
                          nullptr, static_cast<int>(number));
    return {{WarningCode::PdfRepaired, text.arg(inWords(*first))}};
}

} // namespace folioforge
