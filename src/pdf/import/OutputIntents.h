// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <QByteArray>

#include <optional>
#include <utility>
#include <vector>

class QPDF;

namespace folioforge {

class ObjectCopier;

/// The output intents of a source document (ISO 32000-1, 14.11.5), copied.
struct ImportedOutputIntents {
    std::vector<QPDFObjectHandle> intents;
    /// Equal for sources whose intents name the same standards with the same profiles. Nothing
    /// where a profile cannot be read.
    std::optional<QByteArray> meaning;
    /// How many colours the profile of the one for PDF/A has; 0 without one.
    int components = 0;
};

/// To be called before anything else of the source is copied.
ImportedOutputIntents importOutputIntents(QPDF &source, ObjectCopier &copier);

/// The output intents of the document that is made: those of its sources where all of them mean the
/// same, since they say of all pages what colours without a profile are.
class OutputIntentMerger {
  public:
    void add(const ImportedOutputIntents &imported);
    /// A page that no source brought is in the document.
    void addDrawnPage() { m_agree = false; }
    /// The document has the first intents that a source brings, else `otherwise`.
    void keepFirst(const QPDFObjectHandle &otherwise) { m_otherwise = otherwise; }
    /// Whether sources had intents that the document does not have.
    [[nodiscard]] bool areLeft() const { return m_any && !m_agree && !m_otherwise; }
    void finish(QPDF &document) const;

  private:
    std::optional<ImportedOutputIntents> m_first;
    std::vector<QPDFObjectHandle> m_firstIntents; ///< The first that there are.
    std::optional<QPDFObjectHandle> m_otherwise;
    bool m_agree = true;
    bool m_any = false;
};

} // namespace folioforge
