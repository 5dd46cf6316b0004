#pragma once

#include <QByteArrayView>

#include <cstdint>
#include <optional>
#include <vector>

namespace folioforge {

/// The CID of each glyph of a CID-keyed "CFF " table, by glyph id; nothing when the table is
/// name-keyed or cannot be read. Source: Adobe Technical Note 5176, sections 5, 9, 13 and 18.
std::optional<std::vector<std::uint16_t>> readCffCids(QByteArrayView table);

} // namespace folioforge
