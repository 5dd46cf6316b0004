#pragma once

#include <array>
#include <map>
#include <set>
#include <vector>

#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>

namespace folioforge {

/// The part of a transformation that sets sizes: [a b c d] of a PDF matrix (ISO 32000-1, 8.3.4).
struct Linear {
    double a = 1;
    double b = 0;
    double c = 0;
    double d = 1;

    /// This transformation, then `next`. What multiplies to no number is infinitely large.
    [[nodiscard]] Linear then(const Linear &next) const;
    auto operator<=>(const Linear &) const = default;
};

/// [a b c d] of a matrix array; the identity where `array` is none.
Linear linearOf(QPDFObjectHandle array);

/// What one piece of content draws: objects under transformations into its own space.
struct ContentDraws {
    std::map<QPDFObjGen, std::set<Linear>> images;
    std::set<QPDFObjGen> unclear; ///< Images whose size could not be followed.

    /// Adds `object` drawn under `matrix`; too many different sizes make it unclear.
    void add(QPDFObjGen object, const Linear &matrix);
    /// Adds all that `inner` draws, drawn under `matrix`.
    void add(const ContentDraws &inner, const Linear &matrix);
    void addUnclear(const ContentDraws &inner);
};

/// The resources of a page, form or font, and what the forms that lack their own draw with them.
struct ContentScope {
    QPDFObjectHandle resources;
    std::map<QPDFObjGen, ContentDraws> forms;
};

/// Follows content streams down to the images they draw. Each form is read once; one without
/// resources of its own, once in each scope.
class ContentReader {
  public:
    /// What the contents of a page draw, in points.
    ContentDraws readPage(const QPDFObjectHandle &page, ContentScope &scope);
    /// What a form draws in the space it is painted into, that is with its Matrix applied.
    ContentDraws readForm(QPDFObjectHandle form, ContentScope &outer);

  private:
    class Scanner;

    ContentDraws readContent(const QPDFObjectHandle &content, ContentScope &scope);
    void addAllUnclear(ContentScope &scope, ContentDraws &draws);
    void readFonts(ContentScope &scope, ContentDraws &draws);

    std::map<QPDFObjGen, ContentDraws> m_forms; ///< With resources of their own.
    std::set<QPDFObjGen> m_open; ///< Forms being read: one that draws itself is not followed.
    std::set<QPDFObjGen> m_fontsRead;
};

} // namespace folioforge
