// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/Language.h"

#include "pdf/import/StructureImport.h"

#include <qpdf/QPDF.hh>

namespace folioforge {

namespace {

/// Empty where there is none.
std::string languageOf(const ImportedStructure &structure) {
    QPDFObjectHandle language = structure.language;
    return language.isString() ? language.getUTF8Value() : std::string();
}

} // namespace

bool saysLanguageAlone(const ImportedStructure &structure) {
    return structure.kids.empty() && !languageOf(structure).empty();
}

void LanguageMerger::add(const ImportedStructure &structure) {
    addDrawn(languageOf(structure));
    m_anyAlone = m_anyAlone || saysLanguageAlone(structure);
}

void LanguageMerger::addDrawn(const std::string &language) {
    if (!m_first) {
        m_first = language;
    }
    m_agree = m_agree && language == *m_first;
}

void LanguageMerger::finish(QPDF &document) const {
    if (m_agree && m_first && !m_first->empty()) {
        document.getRoot().replaceKey("/Lang", QPDFObjectHandle::newUnicodeString(*m_first));
    }
}

} // namespace folioforge
