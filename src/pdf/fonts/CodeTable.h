// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <set>
#include <vector>

namespace folioforge {

/// A character code of a composite font. It is the CID too, because some readers look up the text
/// of a glyph by its code and others by its CID.
struct CodeEntry {
    std::uint16_t code = 0;
    std::uint16_t glyph = 0;
    QString text; ///< What it stands for; may be several characters or none.
};

/// Gives the glyphs of one font their codes.
class CodeTable {
  public:
    enum class Form {
        /// The table chooses the codes. ASCII characters keep theirs, the next 64 characters get
        /// one byte and all others two; the first byte tells the length.
        Mixed,
        /// Two bytes; the font program gives the codes.
        TwoByte
    };
    static constexpr std::uint16_t kLastOneByte = 0xBF;
    static constexpr std::uint16_t kFirstTwoByte = 0xC000;
    static constexpr std::uint16_t kLastTwoByte = 0xFFFF;

    explicit CodeTable(Form form)
        : m_form(form) {}

    /// A new code for a glyph of a Mixed table; nothing when the table is full. Add each text
    /// once.
    std::optional<std::uint16_t> add(std::uint16_t glyph, const QString &text);
    /// Adds a glyph under `code` to a TwoByte table; false when another text has the code.
    bool addAt(std::uint16_t code, std::uint16_t glyph, const QString &text);

    [[nodiscard]] Form form() const { return m_form; }
    /// In the order they were added.
    [[nodiscard]] const std::vector<CodeEntry> &entries() const { return m_entries; }
    /// Whether a code of a Mixed table has two bytes.
    [[nodiscard]] bool hasTwoByteCodes() const { return m_nextTwoByte > kFirstTwoByte; }

  private:
    std::optional<std::uint16_t> nextCode(QStringView text);

    Form m_form;
    std::vector<CodeEntry> m_entries;
    std::set<std::uint16_t> m_taken; ///< Codes of a TwoByte table.
    std::uint16_t m_nextOneByte = 0x80;
    std::uint32_t m_nextTwoByte = kFirstTwoByte;
};

} // namespace folioforge
