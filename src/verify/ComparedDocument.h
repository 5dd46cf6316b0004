// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/PageTree.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace folioforge {

/// A document that is held against another: its pages and what its destinations are called.
class ComparedDocument {
  public:
    /// `document` must outlive it. Throws Error where it has no page tree.
    explicit ComparedDocument(QPDF &document);

    [[nodiscard]] QPDF &document() const { return m_document; }
    [[nodiscard]] const std::vector<SourcePage> &pages() const { return m_pages; }
    /// What a page has under `key`, itself or from its ancestors; null where it has nothing.
    static QPDFObjectHandle valueOf(const SourcePage &page, const std::string &key);
    /// The array that a destination stands for (ISO 32000-1, 12.3.2), also under a name; null where
    /// there is none.
    QPDFObjectHandle destination(QPDFObjectHandle named);
    /// Whether readers make the appearances of fields anew.
    [[nodiscard]] bool needsAppearances() const;
    /// The font that fields have under this name with its slash; null where there is none.
    [[nodiscard]] QPDFObjectHandle fieldFont(const std::string &name) const;
    /// Whether an optional content group is hidden when the document opens.
    bool isHidden(const QPDFObjectHandle &group);

  private:
    QPDFObjectHandle destinationCalled(const std::string &name);

    QPDF &m_document;
    std::vector<SourcePage> m_pages;
    std::optional<std::map<std::string, QPDFObjectHandle>> m_destinations; ///< Read when asked for.
    struct Layers {
        bool areOff = false;         ///< All but the others.
        std::set<QPDFObjGen> others; ///< Groups that differ from that.
    };
    std::optional<Layers> m_layers; ///< Read when asked for.
};

} // namespace folioforge
