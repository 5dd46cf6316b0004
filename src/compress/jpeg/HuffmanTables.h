#pragma once

#include <array>
#include <cstdio>
#include <vector>

#include <jpeglib.h>

namespace folioforge {

/// The Huffman tables of a JPEG: those of brightness and those of colour.
struct HuffmanTables {
    std::array<JHUFF_TBL, 2> dc;
    std::array<JHUFF_TBL, 2> ac;

    /// The tables of a codec that has encoded a sample of a picture, with codes for all values that
    /// the whole picture may have.
    static HuffmanTables ofSample(const jpeg_compress_struct &codec);
    /// Lets a codec whose defaults are set use them.
    void use(jpeg_compress_struct &codec) const;
};

/// Adds `values` to the table, those it has already left out, at the cost of one bit more for a
/// value that is rare: of the codes that begin with its own it keeps one half, and the others are
/// the new ones. The table is one that libjpeg made, with no more than 162 values of both kinds.
void addValues(JHUFF_TBL &table, const std::vector<UINT8> &values);

} // namespace folioforge
