// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "compress/ContentDraws.h"

#include <map>
#include <memory>
#include <set>

#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>

namespace folioforge {

/// What forms draw, by their object.
struct KnownForms {
    std::map<QPDFObjGen, ContentDraws> draws;
    std::map<QPDFObjGen, ContentDraws> unclear; ///< What those might draw that were not followed.
};

/// The resources of pages, forms or fonts, and what is known of them: hundreds of pages may share
/// one dictionary of thousands of entries.
struct ContentScope {
    explicit ContentScope(const QPDFObjectHandle &dictionary);

    QPDFObjectHandle resources;
    bool holdsStreams; ///< Whether content can draw anything by name.
    bool fontsAreRead = false;
    bool allIsUnclear = false; ///< Every image behind the resources is named as unclear.
    KnownForms forms = {};     ///< Those without resources of their own.
};

/// Follows content streams down to the images they draw. Each form is read once; one without
/// resources of its own, once in each scope. What cannot be followed to its end, because it is
/// damaged, nested too deeply or draws itself, makes all images behind it unclear.
class ContentReader {
  public:
    /// The scope of these resources: one for all who share them where they are an object.
    std::shared_ptr<ContentScope> scopeOf(const QPDFObjectHandle &resources);
    /// What the contents of a page draw, in points.
    ContentDraws readPage(const QPDFObjectHandle &page, ContentScope &scope);
    /// What a form draws in the space it is painted into, that is with its Matrix applied.
    ContentDraws readForm(QPDFObjectHandle form, ContentScope &outer);

  private:
    ContentDraws readContent(const QPDFObjectHandle &content, ContentScope &scope);
    ContentDraws drawsOf(const std::string &text, ContentScope &scope);
    ContentDraws readFonts(ContentScope &scope);

    std::map<QPDFObjGen, std::shared_ptr<ContentScope>> m_scopes;
    KnownForms m_forms; ///< Those with resources of their own.
    std::set<QPDFObjGen> m_open;
    std::set<QPDFObjGen> m_fontsRead;
};

} // namespace folioforge
