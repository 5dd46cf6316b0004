// SPDX-License-Identifier: Apache-2.0

#include "filelist/Orders.h"

#include <QDateTime>

#include <algorithm>
#include <numeric>

namespace folioforge {
namespace {

bool isDigit(QChar unit) {
    return unit >= u'0' && unit <= u'9';
}

/// Takes the run of digits at the start of `text`, without zeros in front, off it.
QStringView takeNumber(QStringView &text) {
    qsizetype length = 0;
    while (length < text.size() && isDigit(text[length])) {
        ++length;
    }
    QStringView digits = text.first(length);
    text = text.sliced(length);
    while (digits.startsWith(u'0')) {
        digits = digits.sliced(1);
    }
    return digits;
}

/// Numbers of any length are compared without being converted: the longer one is the greater.
bool naturallyLess(QStringView left, QStringView right) {
    while (!left.isEmpty() && !right.isEmpty()) {
        if (isDigit(left.front()) && isDigit(right.front())) {
            const QStringView a = takeNumber(left);
            const QStringView b = takeNumber(right);
            if (a != b) {
                return a.size() != b.size() ? a.size() < b.size() : a < b;
            }
        } else if (left.front() != right.front()) {
            return left.front() < right.front();
        } else {
            left = left.sliced(1);
            right = right.sliced(1);
        }
    }
    return left.size() < right.size();
}

QLatin1StringView keyOf(SortOrder order) {
    switch (order) {
    case SortOrder::Size:
        return kMDItemFSSize;
    case SortOrder::Created:
        return kMDItemFSCreationDate;
    case SortOrder::Modified:
        return kMDItemFSContentChangeDate;
    case SortOrder::Name:
    case SortOrder::Natural:
        break;
    }
    return kMDItemFSName;
}

bool isLess(const QVariant &left, const QVariant &right, SortOrder order) {
    if (!left.isValid() || !right.isValid()) {
        return !left.isValid() && right.isValid();
    }
    switch (order) {
    case SortOrder::Name:
        return left.toString() < right.toString();
    case SortOrder::Natural:
        return naturallyLess(left.toString(), right.toString());
    case SortOrder::Size:
        return left.toLongLong() < right.toLongLong();
    case SortOrder::Created:
    case SortOrder::Modified:
        break;
    }
    return left.toDateTime() < right.toDateTime();
}

/// The number at the start of `text`, 0 where there is none, in single precision.
float leadingNumber(QStringView text) {
    const auto isNumeric = [](QChar unit) { return isDigit(unit) || unit == u'.'; };
    const auto end = std::find_if_not(text.begin(), text.end(), isNumeric);
    return text.first(end - text.begin()).toFloat();
}

} // namespace

std::vector<std::size_t> arrangedOrder(std::span<const PDFFileInfo *const> entries,
                                       SortOrder order) {
    std::vector<QVariant> values;
    values.reserve(entries.size());
    for (const PDFFileInfo *entry : entries) {
        values.push_back(entry->valueForUndefinedKey(keyOf(order)));
    }
    std::vector<std::size_t> positions(entries.size());
    std::iota(positions.begin(), positions.end(), std::size_t{0});
    std::stable_sort(positions.begin(), positions.end(), [&](std::size_t left, std::size_t right) {
        return isLess(values[left], values[right], order);
    });
    return positions;
}

int StringFileSizeSort(const QString &text, const QString &other) {
    if (text == other) {
        return 0;
    }
    const auto inMegabytes = [](QStringView size) { return size.endsWith(u"MB"); };
    const auto inKilobytes = [](QStringView size) { return size.endsWith(u"KB"); };
    if (inMegabytes(text) && inKilobytes(other)) {
        return 1;
    }
    if (inKilobytes(text) && inMegabytes(other)) {
        return -1;
    }
    const qsizetype kBlankAndUnit = 3;
    const auto number = [kBlankAndUnit](QStringView size) {
        return leadingNumber(size.chopped(std::min(size.size(), kBlankAndUnit)));
    };
    const float left = number(text);
    const float right = number(other);
    return static_cast<int>(left > right) - static_cast<int>(left < right);
}

} // namespace folioforge
