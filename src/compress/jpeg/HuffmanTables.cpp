#include "compress/jpeg/HuffmanTables.h"

#include <algorithm>

namespace folioforge {

namespace {

/// The sizes of differences between means of blocks (ITU-T T.81, table F.1).
std::vector<UINT8> dcValues() {
    constexpr UINT8 kMax = 11;
    std::vector<UINT8> values;
    for (UINT8 size = 0; size <= kMax; ++size) {
        values.push_back(size);
    }
    return values;
}

/// The end of a block, sixteen zeros, and the sizes of coefficients behind runs of zeros (table
/// F.2).
std::vector<UINT8> acValues() {
    constexpr int kMaxRunLength = 15;
    constexpr int kMax = 10;
    std::vector<UINT8> values{0x00, 0xf0};
    for (int run = 0; run <= kMaxRunLength; ++run) {
        for (int size = 1; size <= kMax; ++size) {
            values.push_back(static_cast<UINT8>(run << 4 | size));
        }
    }
    return values;
}

} // namespace

void addValues(JHUFF_TBL &table, const std::vector<UINT8> &values) {
    constexpr int kMaxLength = 16;
    // At this length a code of at least this many values has one; half of the longer codes that
    // begin with it are enough for all others.
    constexpr int kMaxSplitLength = 7;
    int count = 0;
    for (int length = 1; length <= kMaxLength; ++length) {
        count += table.bits[length];
    }
    UINT8 *end = table.huffval + count;
    for (const UINT8 value : values) {
        if (std::find(table.huffval, table.huffval + count, value) == table.huffval + count) {
            *end++ = value;
            ++table.bits[kMaxLength];
        }
    }
    if (end == table.huffval + count) {
        return;
    }
    int split = kMaxSplitLength;
    while (split > 1 && table.bits[split] == 0) {
        --split;
    }
    // Values stand in the order of their codes' lengths: the last of one length becomes the first
    // of the next.
    --table.bits[split];
    ++table.bits[split + 1];
}

HuffmanTables HuffmanTables::ofSample(const jpeg_compress_struct &codec) {
    HuffmanTables tables{};
    for (std::size_t i = 0; i < tables.dc.size(); ++i) {
        tables.dc[i] = *codec.dc_huff_tbl_ptrs[i];
        tables.ac[i] = *codec.ac_huff_tbl_ptrs[i];
        addValues(tables.dc[i], dcValues());
        addValues(tables.ac[i], acValues());
    }
    return tables;
}

void HuffmanTables::use(jpeg_compress_struct &codec) const {
    for (std::size_t i = 0; i < dc.size(); ++i) {
        *codec.dc_huff_tbl_ptrs[i] = dc[i];
        *codec.ac_huff_tbl_ptrs[i] = ac[i];
        codec.dc_huff_tbl_ptrs[i]->sent_table = FALSE;
        codec.ac_huff_tbl_ptrs[i]->sent_table = FALSE;
    }
}

} // namespace folioforge
