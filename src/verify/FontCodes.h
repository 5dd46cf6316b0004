// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <QHash>
#include <QString>

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace folioforge {

class TextTracer;

/// What the codes of a font in a PDF mean to readers: their characters, by its ToUnicode map, and
/// their widths.
class FontCodes {
  public:
    /// Reads a font dictionary (ISO 32000-1, 9.6 to 9.10). Throws Error where a part of it cannot
    /// be read, and what libqpdf throws. A font without a ToUnicode map has the characters of its
    /// encoding as far as that is a usual one.
    static std::shared_ptr<const FontCodes> read(const QPDFObjectHandle &font);

    /// Whether its streams are deflated and say nothing that those of fonts embedded here do not.
    [[nodiscard]] bool isAsEmbedded() const { return m_isAsEmbedded; }

    /// Adds what is shown by `codes`, a string of a content, in `size` points. With `isRead` false
    /// the characters are those of an actual text, which was added before.
    void show(std::string_view codes, double size, bool isRead, TextTracer &tracer) const;

  private:
    struct Range {
        unsigned length = 1; ///< Bytes of the codes.
        std::uint32_t first = 0;
        std::uint32_t last = 0;
        std::uint32_t cid = 0; ///< Of the first; a code space has none.
    };
    struct Code {
        std::uint32_t value = 0;
        unsigned length = 1;
    };

    void readComposite(const QPDFObjectHandle &font);
    void readSimple(const QPDFObjectHandle &font);
    void readEncodingMap(const std::string &map);
    void readUnicodeMap(const std::string &map);
    void readCidWidths(const QPDFObjectHandle &cidFont);
    void addDifferences(const QPDFObjectHandle &differences);
    void addCids(const Range &range) { m_cids[{range.length, range.last}] = range; }
    void requireModest();
    void setText(std::uint32_t code, const QString &text);
    void indexFirstBytes();
    [[nodiscard]] Code nextCode(std::string_view codes) const;
    [[nodiscard]] std::uint32_t cidOf(const Code &code) const;
    [[nodiscard]] double widthOf(std::uint32_t cid) const;

    static constexpr std::size_t kCodes = 0x10000;
    std::vector<Range> m_codeSpace;
    std::map<std::pair<unsigned, std::uint32_t>, Range> m_cids; ///< By length and last code.
    bool m_isAsEmbedded = false;
    int m_steps = 0; ///< How much of its maps has been read.
    std::vector<char16_t> m_units = std::vector<char16_t>(256); ///< 0 where `m_texts` says it.
    QHash<std::uint32_t, QString> m_texts;
    std::vector<float> m_widths =
        std::vector<float>(256, -1); ///< By CID, thousandths; below 0 the default.
    double m_defaultWidth = 1000;
    struct OneByte {
        char16_t unit = 0; ///< 0 where the byte is no code by itself, or has not one character.
        float width = 0;   ///< Thousandths.
    };
    std::array<OneByte, 256> m_oneByte{}; ///< Nearly all codes of nearly all texts.
};

} // namespace folioforge
