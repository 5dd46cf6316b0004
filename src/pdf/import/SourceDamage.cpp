// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/SourceDamage.h"

#include "pdf/QpdfErrors.h"

#include <qpdf/QPDF.hh>

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// "3" or "3, 5, 7 and 12 more".
QString inWords(const std::set<std::size_t> &pages) {
    constexpr qsizetype kNamed = 5;
    QStringList named;
    for (auto page = pages.begin(); page != pages.end() && named.size() < kNamed; ++page) {
        named += QString::number(*page);
    }
    const QString text = named.join(u", "_s);
    const auto others = static_cast<qsizetype>(pages.size()) - named.size();
    return others == 0 ? text : u"%1 and %2 more"_s.arg(text).arg(others);
}

} // namespace

Warnings missingPages(const SourcePages &pages) {
    const auto read = static_cast<long long>(pages.pages.size());
    const auto unreadable = static_cast<long long>(pages.unreadable.size());
    const long long total = pages.stated.value_or(read + unreadable);
    if (read > total) {
        return {{WarningCode::PdfRepaired,
                 u"The document states %1 pages, and %2 were found"_s.arg(total).arg(read)}};
    }
    if (read == total) {
        if (pages.stated || read == 0) {
            return {};
        }
        return {{WarningCode::PdfRepaired,
                 u"The document does not state its pages, and %1 were found"_s.arg(read)}};
    }
    QString text = u"%1 of %2 pages could be read"_s.arg(read).arg(total);
    if (unreadable > 0) {
        text += u", page %1 is the first that is missing"_s.arg(pages.unreadable.front() + 1);
    }
    return {{WarningCode::PdfPagesLost, text}};
}

Warnings damagedPages(const std::set<std::size_t> &pages) {
    if (pages.empty()) {
        return {};
    }
    return {{WarningCode::PdfPagesLost,
             u"What stands on page %1 is damaged and may lack something"_s.arg(inWords(pages))}};
}

Warnings repairs(QPDF &source) {
    const std::vector<QPDFExc> faults = faultsOf(source);
    const auto first = std::ranges::find_if(faults, isFault);
    if (first == faults.end()) {
        return {};
    }
    const auto number = std::count_if(first, faults.end(), isFault);
    const QString text = u"The document is damaged and was repaired"_s;
    return {{WarningCode::PdfRepaired,
             number == 1 ? u"%1: %2"_s.arg(text, inWords(*first))
                         : u"%1 in %2 places, the first: %3"_s.arg(text, QString::number(number),
                                                                   inWords(*first))}};
}

} // namespace folioforge
