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

/// The name trees of the document that is made. Document scripts run in the order of their names:
/// where several sources have some, a number puts them in the order of the sources.
class NameTreeMerger {
  public:
    void add(const ImportedNameTrees &imported);
    void finish(QPDF &document);

  private:
    std::map<std::string, NamedObjects> m_trees;
    std::vector<TreeEntries> m_scripts; ///< By source.
};

} // namespace folioforge
