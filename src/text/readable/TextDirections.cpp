// SPDX-License-Identifier: Apache-2.0

#include "text/readable/TextDirections.h"

#include <unicode/ubidi.h>

#include <algorithm>
#include <new>

namespace folioforge {
namespace {

void require(UErrorCode error) {
    if (U_FAILURE(error)) {
        throw std::bad_alloc(); // The only way to fail of calls whose arguments are right.
    }
}

/// Right-to-left scripts and the controls of direction; a few units more do no harm.
bool isDirected(char16_t unit) {
    constexpr char16_t kFirstHebrew = 0x0590;
    constexpr char16_t kLastArabicExtended = 0x08FF;
    constexpr char16_t kFirstControl = 0x200E; // Marks, embeddings, overrides and isolates.
    constexpr char16_t kLastControl = 0x2069;
    constexpr char16_t kFirstHighSurrogate = 0xD802; // Of the right-to-left scripts past U+FFFF.
    constexpr char16_t kLastHighSurrogate = 0xD83B;
    constexpr char16_t kFirstForm = 0xFB1D;
    constexpr char16_t kLastForm = 0xFEFC;
    return unit >= kFirstHebrew &&
           (unit <= kLastArabicExtended || (unit >= kFirstControl && unit <= kLastControl) ||
            (unit >= kFirstHighSurrogate && unit <= kLastHighSurrogate) ||
            (unit >= kFirstForm && unit <= kLastForm));
}

} // namespace

void TextDirections::Close::operator()(UBiDi *bidi) const {
    ubidi_close(bidi);
}

TextDirections::Bidi TextDirections::open() {
    Bidi bidi(ubidi_open());
    return bidi ? std::move(bidi) : throw std::bad_alloc();
}

bool TextDirections::matter(QStringView text) {
    return std::any_of(text.utf16(), text.utf16() + text.size(), isDirected);
}

TextDirections::TextDirections(QStringView paragraph)
    : m_paragraph(open()) {
    UErrorCode error = U_ZERO_ERROR;
    ubidi_setPara(m_paragraph.get(), paragraph.utf16(), static_cast<int32_t>(paragraph.size()),
                  UBIDI_DEFAULT_LTR, nullptr, &error);
    require(error);
}

bool TextDirections::isRightToLeft() const {
    return (ubidi_getParaLevel(m_paragraph.get()) & 1U) != 0;
}

std::vector<DirectedRun> TextDirections::logicalRuns() const {
    std::vector<DirectedRun> runs;
    const int32_t length = ubidi_getProcessedLength(m_paragraph.get());
    for (int32_t first = 0; first < length;) {
        int32_t end = 0;
        UBiDiLevel level = 0;
        ubidi_getLogicalRun(m_paragraph.get(), first, &end, &level);
        runs.push_back({first, end, (level & 1U) != 0});
        first = end;
    }
    return runs;
}

std::vector<DirectedRun> TextDirections::visualRuns(qsizetype first, qsizetype end) const {
    const Bidi row = open();
    UErrorCode error = U_ZERO_ERROR;
    ubidi_setLine(m_paragraph.get(), static_cast<int32_t>(first), static_cast<int32_t>(end),
                  row.get(), &error);
    const int32_t count = ubidi_countRuns(row.get(), &error);
    require(error);
    std::vector<DirectedRun> runs;
    for (int32_t i = 0; i < count; ++i) {
        int32_t start = 0;
        int32_t length = 0;
        const UBiDiDirection direction = ubidi_getVisualRun(row.get(), i, &start, &length);
        runs.push_back({first + start, first + start + length, direction == UBIDI_RTL});
    }
    return runs;
}

} // namespace folioforge
