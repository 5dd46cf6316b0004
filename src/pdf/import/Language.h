// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <optional>
#include <string>

class QPDF;

namespace folioforge {

struct ImportedStructure;

/// Whether a document says its language in its catalog alone: none of its structure elements is
/// there to say it.
bool saysLanguageAlone(const ImportedStructure &structure);

/// The language of the document that is made: that of its sources where all say the same. Where
/// they do not, their structure elements say it, if they have any.
class LanguageMerger {
  public:
    void add(const ImportedStructure &structure);
    /// The language of pages that no source brought; empty where it is not known.
    void addDrawn(const std::string &language);
    /// Whether sources have said a language that the document does not say.
    [[nodiscard]] bool isLeft() const { return m_anyAlone && !m_agree; }
    void finish(QPDF &document) const;

  private:
    std::optional<std::string> m_first; ///< Empty where the first source says none.
    bool m_agree = true;
    bool m_anyAlone = false;
};

} // namespace folioforge
