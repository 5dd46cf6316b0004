// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Jpeg2000.h"

#include "error/Reasons.h"
#include "image/Bytes.h"

#include <algorithm>
#include <vector>

namespace folioforge {

namespace {

/// Marker codes (ITU-T T.800, table A.2).
enum Marker : quint16 {
    Soc = 0xFF4F,
    Siz = 0xFF51,
    Cod = 0xFF52,
    Qcd = 0xFF5C,
    Sot = 0xFF90,
    Eoc = 0xFFD9,
};

constexpr qint64 kMarker = 2; // Bytes.

/// The parts of a tile that have been met.
struct Tile {
    int parts = 0;
    int stated = 0; ///< How many there are; 0 where not stated.
};

/// Walks through a codestream.
class Walk {
  public:
    Walk(const FileView &codestream, Jpeg2000Structure &structure)
        : m_codestream(codestream)
        , m_structure(structure) {}

    /// Throws Error where the codestream ends.
    void pass() {
        passMainHeader();
        while (half(m_at) == Sot) {
            passTilePart();
        }
        m_hasEnd = half(m_at) == Eoc;
    }

    void judge() {
        const auto whole = std::ranges::count_if(m_tiles, [this](const Tile &tile) {
            return tile.parts > 0 && (tile.stated == 0 ? m_hasEnd : tile.parts >= tile.stated);
        });
        m_structure.missingTiles = m_structure.tiles - whole;
        m_structure.readable = m_hasEnd || m_structure.cutBytes > 0 ? m_codestream.size() : m_at;
        m_structure.isWhole = m_hasEnd && m_hasCoding && m_structure.tiles > 0 &&
                              m_structure.missingTiles == 0 && m_structure.cutBytes == 0;
    }

  private:
    [[nodiscard]] quint16 half(qint64 at) const {
        return bigEndianAt<quint16>(m_codestream.readExactly(at, 2), 0);
    }

    void passMainHeader() {
        if (half(0) != Soc || half(2) != Siz) {
            throw Error(Reasons::tr("The JPEG 2000 file is damaged"));
        }
        bool hasStyle = false;
        bool hasQuantization = false;
        for (m_at = 2; half(m_at) != Sot; m_at += 2 + half(m_at + 2)) {
            const quint16 marker = half(m_at);
            if (marker == Siz) {
                readSize(m_codestream.readExactly(m_at + 2, half(m_at + 2)));
            }
            hasStyle = hasStyle || marker == Cod;
            hasQuantization = hasQuantization || marker == Qcd;
        }
        m_hasCoding = hasStyle && hasQuantization;
    }

    void readSize(const QByteArray &size) {
        const auto tilesAlong = [&](int field) {
            const qint64 end = bigEndianAt<quint32>(size, 4 + field);
            const qint64 side = bigEndianAt<quint32>(size, 20 + field);
            const qint64 start = bigEndianAt<quint32>(size, 28 + field);
            return side == 0 ? 0 : std::max<qint64>((end - start + side - 1) / side, 0);
        };
        constexpr qint64 kMaxTiles = 65535;
        m_structure.tiles = std::min(tilesAlong(0), kMaxTiles) * std::min(tilesAlong(4), kMaxTiles);
        if (m_structure.tiles > kMaxTiles) {
            throw Error(Reasons::tr("The JPEG 2000 file is damaged"));
        }
        m_tiles.resize(static_cast<size_t>(m_structure.tiles));
        const int components = bigEndianAt<quint16>(size, 36);
        for (int c = 0; c < components; ++c) {
            m_structure.isSubsampled = m_structure.isSubsampled ||
                                       bigEndianAt<uchar>(size, 39 + 3 * c) != 1 ||
                                       bigEndianAt<uchar>(size, 40 + 3 * c) != 1;
        }
    }

    void passTilePart() {
        constexpr qint64 kLead = 12;
        const QByteArray lead = m_codestream.readExactly(m_at, kLead);
        const size_t number = bigEndianAt<quint16>(lead, 4);
        qint64 length = bigEndianAt<quint32>(lead, 6);
        if (length == 0) { // The last may go on to the end.
            length = m_codestream.size() - kMarker - m_at;
            if (half(m_at + length) != Eoc) {
                throw Error(Reasons::tr("The JPEG 2000 file is cut off"));
            }
        }
        if (number >= m_tiles.size() || length < kLead) {
            throw Error(Reasons::tr("The JPEG 2000 file is damaged"));
        }
        if (length > m_codestream.size() - m_at) {
            m_structure.cutOf = length;
            m_structure.cutBytes = length - (m_codestream.size() - m_at);
            throw Error(Reasons::tr("The JPEG 2000 file is cut off"));
        }
        Tile &tile = m_tiles[number];
        ++tile.parts;
        tile.stated = std::max<int>(tile.stated, bigEndianAt<uchar>(lead, 11));
        m_at += length;
    }

    const FileView &m_codestream;
    Jpeg2000Structure &m_structure;
    std::vector<Tile> m_tiles;
    qint64 m_at = 0;
    bool m_hasCoding = false;
    bool m_hasEnd = false;
};

} // namespace

Jpeg2000Structure readJpeg2000Structure(const FileView &file, const Jpeg2000Metadata &metadata) {
    Jpeg2000Structure structure;
    if (metadata.codestreamAt < 0) {
        return structure;
    }
    const FileView codestream = file.part(metadata.codestreamAt, metadata.codestreamBytes);
    Walk walk(codestream, structure);
    try {
        walk.pass();
    } catch (const Error &) {
        // What was met before the damage says how much is missing.
    }
    walk.judge();
    return structure;
}

} // namespace folioforge
