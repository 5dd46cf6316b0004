// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <cstdint>
#include <string>
#include <string_view>

namespace folioforge {

/// A token of a content stream or a CMap (ISO 32000-1, 7.2 and 7.8.2).
struct ContentToken {
    enum class Kind {
        Number,
        Name,
        String,
        Word,
        BeginArray,
        EndArray,
        BeginDictionary,
        EndDictionary
    };
    Kind kind = Kind::Word;
    double number = 0;
    std::string text; ///< Of a name without its slash, of a string its bytes.
};

/// Splits contents into tokens. Anything can be split; what makes no sense becomes words.
class ContentLexer {
  public:
    /// `content` must outlive it.
    explicit ContentLexer(std::string_view content)
        : m_content(content) {}

    /// Puts the next token into `token`, whose text is used again; false at the end.
    bool next(ContentToken &token);
    /// Leaves out the data of an inline image, whose "ID" was the last token.
    void passInlineImage();

  private:
    [[nodiscard]] bool isAtEnd() const { return m_at >= m_content.size(); }
    void passBlanks();
    void readString(std::string &text);
    void readEscape(std::string &text);
    void readHexadecimal(std::string &text);
    void readName(std::string &text);
    bool readNumber(double &number);
    void readWord(std::string &text);
    bool readDelimiter(ContentToken &token);

    std::string_view m_content;
    std::size_t m_at = 0;
};

/// Whether `byte` is neither a blank nor a delimiter (ISO 32000-1, 7.2.2).
bool isRegular(char byte);

/// Text of a font or a content in UTF-16, its high bytes first; a mark of joining within counts,
/// also as the first.
QString fromUtf16(std::string_view bytes);

} // namespace folioforge
