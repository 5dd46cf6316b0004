// SPDX-License-Identifier: Apache-2.0

#include "pdf/PageSizes.h"

#include "error/Reasons.h"
#include "text/PageSetup.h"

#include <QSizeF>
#include <QString>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

bool isShown(const QSizeF &size) {
    const auto [shorter, longer] = std::minmax({size.width(), size.height()});
    return shorter >= kShortestSide && longer <= kMaxSide;
}

QSizeF sizeOfBox(QPDFObjectHandle &box) {
    const auto corners = box.getArrayAsRectangle();
    return {corners.urx - corners.llx, corners.ury - corners.lly};
}

QString sizeText(const QSizeF &size) {
    constexpr int kDigits = 8;
    return u"%1 x %2"_s.arg(QString::number(size.width(), 'g', kDigits),
                            QString::number(size.height(), 'g', kDigits));
}

} // namespace

Warnings checkPageSizes(std::span<const QPDFObjectHandle> pages) {
    constexpr int kNamed = 3;
    QStringList named;
    int others = 0;
    QPDFObjectHandle shown; // A box that many pages may share.
    for (std::size_t i = 0; i < pages.size(); ++i) {
        auto box = QPDFObjectHandle(pages[i]).getKey("/MediaBox");
        if (box.isSameObjectAs(shown)) {
            continue;
        }
        const QSizeF size = sizeOfBox(box);
        if (isShown(size)) {
            shown = box;
        } else if (!box.isRectangle()) {
            continue;
        } else if (named.size() < kNamed) {
            named += Reasons::tr("page %1 (%2)").arg(i + 1).arg(sizeText(size));
        } else {
            ++others;
        }
    }
    if (named.isEmpty()) {
        return {};
    }
    const QString all = Reasons::listed(named);
    return {
        {WarningCode::PageSize,
         Reasons::tr("Readers need not show pages beyond 3 to 14,400 units: %1")
             .arg(others == 0 ? all : Reasons::tr("%1 and %n more", nullptr, others).arg(all))}};
}

QSizeF sizeOfPage(const QPDFObjectHandle &page) {
    auto box = QPDFObjectHandle(page).getKey("/MediaBox");
    return sizeOfBox(box);
}

} // namespace folioforge
