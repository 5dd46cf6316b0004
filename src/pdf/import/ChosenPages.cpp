// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/ChosenPages.h"

#include "error/Error.h"
#include "error/Reasons.h"

#include <qpdf/QUtil.hh>

#include <numeric>
#include <stdexcept>

namespace folioforge {

namespace {

/// The numbers, from 1, that a valid `range` means of `count` pages, all where it is empty. Throws
/// Error where one of them is none.
std::vector<int> numbersIn(const QByteArray &range, std::size_t count) {
    std::vector<int> all(count);
    std::iota(all.begin(), all.end(), 1);
    if (range.isEmpty()) {
        return all;
    }
    try {
        if (count > 0) { // Else the library would take any number.
            return QUtil::parse_numrange(range.constData(), static_cast<int>(count));
        }
    } catch (const std::runtime_error &) {
        // Said below.
    }
    const QString text = count == 1 ? Reasons::tr("It has 1 page, and \"%1\" names others")
                                    : Reasons::tr("It has %n pages, and \"%1\" names others",
                                                  nullptr, static_cast<int>(count));
    throw Error(text.arg(QString::fromLatin1(range)));
}

} // namespace

ChosenPages choosePages(const std::vector<SourcePage> &found, const QByteArray &range) {
    ChosenPages chosen;
    for (const int number : numbersIn(range, found.size())) {
        chosen.positions.push_back(static_cast<std::size_t>(number) - 1);
        chosen.pages.push_back(found[chosen.positions.back()]);
    }
    return chosen;
}

void turnPages(const std::vector<QPDFObjectHandle> &pages, const std::vector<PageTurn> &turns) {
    constexpr long long kFull = 360;
    for (const PageTurn &turn : turns) {
        for (const int number : numbersIn(turn.range, pages.size())) {
            QPDFObjectHandle page = pages[static_cast<std::size_t>(number) - 1];
            auto stated = page.getKey("/Rotate");
            const auto before =
                turn.isRelative && stated.isInteger() ? stated.getIntValue() % kFull : 0;
            page.replaceKey(
                "/Rotate", QPDFObjectHandle::newInteger((before + turn.angle + 2 * kFull) % kFull));
        }
    }
}

} // namespace folioforge
