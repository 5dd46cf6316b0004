// SPDX-License-Identifier: Apache-2.0

#include "cli/NamesLike.h"

#include <QByteArrayView>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>
#include <vector>

namespace folioforge {
namespace {

/// How many bytes have to be put in, taken out or replaced to make one of the other.
qsizetype editDistance(QByteArrayView one, QByteArrayView other) {
    std::vector<qsizetype> row(static_cast<std::size_t>(other.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < one.size(); ++i) {
        qsizetype diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 1; j < row.size(); ++j) {
            const bool isSame = one[i] == other[static_cast<qsizetype>(j) - 1];
            const qsizetype least =
                std::min({diagonal + (isSame ? 0 : 1), row[j] + 1, row[j - 1] + 1});
            diagonal = std::exchange(row[j], least);
        }
    }
    return row.back();
}

QByteArray withDashAtEnd(const QByteArray &name) {
    return name + '-';
}

} // namespace

QByteArrayList namesLike(const QByteArray &typed, const QByteArrayList &names) {
    QByteArray near;
    qsizetype nearest = std::min<qsizetype>(4, typed.size() / 2); // As many letters may be wrong.
    for (const QByteArray &name : names) {
        if (const qsizetype distance = editDistance(typed, name); distance < nearest) {
            nearest = distance;
            near = name;
        }
    }
    if (!near.isEmpty()) {
        return {near};
    }
    constexpr qsizetype kDashes = 2;
    QByteArrayList like;
    if (typed.startsWith("--") && typed.size() > kDashes) {
        const QByteArray words = withDashAtEnd(typed.sliced(1));
        std::ranges::copy_if(names, std::back_inserter(like), [&](const QByteArray &name) {
            return withDashAtEnd(name).contains(words);
        });
    }
    return like;
}

} // namespace folioforge
