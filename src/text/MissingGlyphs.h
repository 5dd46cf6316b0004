// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"
#include "text/FontCascade.h"

#include <QtGlobal>

#include <vector>

namespace folioforge {

/// The characters of one text that are drawn as boxes. It stays small however many there are.
class MissingGlyphs {
  public:
    /// Takes a glyph with the id 0, which is drawn.
    void add(const Glyph &glyph);

    /// How many they are, of which scripts, and the first few; nothing where there are none.
    [[nodiscard]] Warnings warnings() const;

  private:
    struct Script {
        QString name;
        std::vector<char32_t> first; ///< The first of its characters, each once.
        bool hasMore = false;
    };
    Script &scriptOf(char32_t character);

    qint64 m_count = 0;
    qint64 m_halves = 0; ///< Of surrogate pairs that the end of a row splits.
    std::vector<Script> m_scripts;
};

} // namespace folioforge
