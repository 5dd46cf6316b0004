// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"
#include "pdf/import/FieldRenames.h"
#include "pdf/import/FormImport.h"
#include "pdf/import/FreeName.h"

#include <map>
#include <set>
#include <string>

class QPDF;

namespace folioforge {

/// Merges the interactive forms (ISO 32000-1, 12.7) of several documents. Fields of the same name
/// stay different fields, and each keeps its resources.
class FormMerger {
  public:
    /// Takes the names of the fields and says which of them got others, in the copy.
    Warnings tellFieldsApart(ImportedForm &form);
    /// Adds a form of which the fields are told apart, and which `document` holds.
    void add(const ImportedForm &form, QPDF &document);
    /// Writes the form into the catalog if there is any.
    void finish(QPDF &document);

  private:
    Renames renameFields(const ImportedForm &form);
    CategoryRenames addResources(QPDFObjectHandle resources);

    ImportedForm m_form;
    std::set<std::string> m_names;
    NameNumbers m_nameNumbers;
    std::map<std::string, std::map<std::string, QPDFObjectHandle>> m_resources;
    std::map<std::string, NameNumbers> m_resourceNumbers; ///< As m_resources, by category.
};

} // namespace folioforge
