// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/TreeEntries.h"

#include <map>
#include <string>
#include <vector>

class QPDF;

namespace folioforge {

class ObjectCopier;
class SourceNames;

inline constexpr const char *kScripts = "/JavaScript";
inline constexpr const char *kTemplates = "/Templates";

/// The name trees of a source (ISO 32000-1, 7.7.4) but for its destinations, copied, by key.
using ImportedNameTrees = std::map<std::string, TreeEntries>;

/// To be called before anything is copied that refers to an attachment by its name.
ImportedNameTrees importNameTrees(QPDF &source, SourceNames &names, ObjectCopier &copier);

/// The entries of a source's /Names that the standard does not know, by key. Whether they are trees
/// and what they refer to is not known either, so that only a whole document can keep them.
NamedObjects furtherNames(QPDF &source);

/// The name trees of the document that is made. Document scripts run in the order of their names:
/// where several sources have some, or their names repeat or are not in order, a number puts them
/// in the order of their tree.
class NameTreeMerger {
  public:
    void add(const ImportedNameTrees &imported);
    /// Adds copies of what furtherNames() gave.
    void addFurther(const NamedObjects &names) { m_further.insert(names.begin(), names.end()); }
    void finish(QPDF &document);

  private:
    std::map<std::string, NamedObjects> m_trees;
    std::vector<TreeEntries> m_scripts; ///< By source.
    NamedObjects m_further;
};

} // namespace folioforge
