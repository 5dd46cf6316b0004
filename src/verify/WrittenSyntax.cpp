// SPDX-License-Identifier: Apache-2.0

#include "verify/WrittenSyntax.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "verify/ContentLexer.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>

namespace folioforge {

namespace {

constexpr int kEnd = -1;

/// The byte at `offset`, or kEnd.
int byteAt(ByteWindow &bytes, qint64 offset) {
    const std::string_view there = bytes.at(offset);
    return there.empty() ? kEnd : static_cast<unsigned char>(there.front());
}

/// Behind the string in parentheses that begins at `at`.
qint64 endOfString(ByteWindow &bytes, qint64 at) {
    int depth = 0;
    for (int next = byteAt(bytes, at); next != kEnd; next = byteAt(bytes, ++at)) {
        if (next == '\\') {
            ++at;
        } else if (next == '(') {
            ++depth;
        } else if (next == ')' && --depth == 0) {
            return at + 1;
        }
    }
    return at;
}

/// Whether the object that begins at `at` has a vertical tab outside of strings and comments; `at`
/// moves behind what was read.
bool hasVerticalTab(ByteWindow &bytes, qint64 &at) {
    std::string word;
    for (int next = byteAt(bytes, at); next != kEnd && next != '\v'; next = byteAt(bytes, at)) {
        if (isRegular(static_cast<char>(next))) {
            word += static_cast<char>(next);
            ++at;
            continue;
        }
        if (word == "stream" || word == "endobj") {
            return false;
        }
        word.clear();
        if (next == '(') {
            at = endOfString(bytes, at);
        } else if (next == '%') {
            while (next != kEnd && next != '\n' && next != '\r') {
                next = byteAt(bytes, ++at);
            }
        } else {
            word = next == '/' ? "/" : "";
            ++at;
        }
    }
    return byteAt(bytes, at) == '\v';
}

/// Where the objects of the file that stand by themselves begin.
std::set<qint64> beginnings(QPDF &document) {
    std::set<qint64> offsets;
    for (const auto &[object, place] : document.getXRefTable()) {
        if (place.getType() == 1) {
            offsets.insert(place.getOffset());
        }
    }
    return offsets;
}

/// The bytes before the header, from which on offsets count.
qint64 headerAt(ByteWindow &bytes) {
    constexpr std::string_view kHeader("%PDF-");
    constexpr qint64 kMost = 1024;
    for (qint64 at = 0; at < kMost; ++at) {
        const auto isThere = [&bytes, i = at](char character) mutable {
            return byteAt(bytes, i++) == character;
        };
        if (std::ranges::all_of(kHeader, isThere)) {
            return at;
        }
    }
    return 0;
}

} // namespace

void requireCommonSpaces(QPDF &document, const ReadBytes &readBytes, qint64 size) {
    constexpr std::size_t kWindow = 1 << 12; // Mostly streams lie between objects.
    ByteWindow bytes(readBytes, kWindow);
    const qint64 header = headerAt(bytes);
    qint64 left = 2 * size; // Objects that begin in one another are read again and again.
    for (const qint64 offset : beginnings(document)) {
        const qint64 begin = header + offset;
        qint64 at = begin;
        const bool hasOne = hasVerticalTab(bytes, at);
        left -= at - begin;
        if (hasOne || left < 0) {
            throw Error(Reasons::tr("The PDF is damaged: %1")
                            .arg(Reasons::tr("an object is not well formed")));
        }
    }
}

} // namespace folioforge
