// SPDX-License-Identifier: Apache-2.0

#include "compress/ContentReader.h"

#include "compress/ContentScanner.h"
#include "compress/Resources.h"
#include "compress/StreamFilters.h"
#include "pdf/import/Entries.h"

#include <string>
#include <utility>
#include <vector>

#include <qpdf/QPDF.hh>

namespace folioforge {

namespace {

constexpr std::size_t kMaxFormDepth = 32;
constexpr std::size_t kMaxContentBytes = 64 << 20;

/// Appends the text of a form or of a page's contents, and says whether all of it could be read.
bool readText(QPDFObjectHandle content, std::string &text) {
    BoundedBuffer target(text, kMaxContentBytes);
    const QPDF *document = content.getOwningQPDF();
    const std::size_t warnings = document ? document->numWarnings() : 0;
    try {
        const auto streams = content.isStream() ? std::vector{content} : content.getPageContents();
        for (QPDFObjectHandle stream : streams) {
            bool filtered = false;
            if (!stream.pipeStreamData(&target, &filtered, 0, qpdf_dl_specialized)) {
                return false;
            }
            target.writeCStr("\n");
        }
    } catch (const std::exception &) {
        return false;
    }
    // Compressed data that ends too early counts for no failure, it only warns.
    return !document || document->numWarnings() == warnings;
}

} // namespace

ContentScope::ContentScope(const QPDFObjectHandle &dictionary)
    : resources(dictionary)
    , holdsStreams(!drawableStreams(resources).empty()) {}

std::shared_ptr<ContentScope> ContentReader::scopeOf(const QPDFObjectHandle &resources) {
    if (!resources.isIndirect()) {
        return std::make_shared<ContentScope>(resources);
    }
    std::shared_ptr<ContentScope> &scope = m_scopes[resources.getObjGen()];
    if (!scope) {
        scope = std::make_shared<ContentScope>(resources);
    }
    return scope;
}

ContentDraws ContentReader::readPage(const QPDFObjectHandle &page, ContentScope &scope) {
    return readContent(page, scope);
}

ContentDraws ContentReader::readForm(QPDFObjectHandle form, ContentScope &outer) {
    if (!form.isStream() || isImage(form)) {
        return {};
    }
    QPDFObjectHandle resources = form.getDict().getKey("/Resources");
    const bool hasOwn = resources.isDictionary();
    KnownForms &known = hasOwn ? m_forms : outer.forms;
    const QPDFObjGen id = form.getObjGen();
    if (const auto found = known.draws.find(id); found != known.draws.end()) {
        return found->second;
    }
    if (m_open.contains(id) || m_open.size() >= kMaxFormDepth) {
        // Found once only: forms that draw each other ask for it many times.
        const auto [place, isNew] = known.unclear.try_emplace(id);
        if (isNew) {
            place->second.unclear = imagesBehind(hasOwn ? resources : outer.resources);
        }
        return place->second;
    }
    m_open.insert(id);
    const ContentDraws inner = readContent(form, hasOwn ? *scopeOf(resources) : outer);
    m_open.erase(id);
    ContentDraws draws;
    draws.add(inner, matrixOf(form.getDict().getKey("/Matrix")));
    return known.draws[id] = std::move(draws);
}

ContentDraws ContentReader::readContent(const QPDFObjectHandle &content, ContentScope &scope) {
    ContentDraws draws = readFonts(scope);
    // Text alone needs no reading.
    if (!scope.holdsStreams) {
        return draws;
    }
    std::string text;
    if (readText(content, text)) {
        draws.add(drawsOf(text, scope), Matrix2x2());
    } else if (!std::exchange(scope.allIsUnclear, true)) {
        // What cannot be read may draw any image of its resources at any size.
        draws.unclear.merge(imagesBehind(scope.resources));
    }
    return draws;
}

ContentDraws ContentReader::drawsOf(const std::string &text, ContentScope &scope) {
    ContentDraws draws;
    for (const auto &[id, drawn] : scanContent(text, scope.resources)) {
        if (isImage(drawn.object)) {
            for (const Matrix2x2 &size : drawn.sizes) {
                draws.add(id, size);
            }
            if (drawn.unclear) {
                draws.unclear.insert(id);
            }
            continue;
        }
        const ContentDraws inner = readForm(drawn.object, scope);
        if (drawn.unclear || drawn.sizes.size() > ContentDraws::kMaxSizes) {
            draws.addUnclear(inner);
            continue;
        }
        for (const Matrix2x2 &size : drawn.sizes) {
            draws.add(inner, size);
        }
    }
    return draws;
}

/// The size of a glyph follows the text that shows it, which is not read: images in the glyphs of
/// Type 3 fonts are unclear.
ContentDraws ContentReader::readFonts(ContentScope &scope) {
    ContentDraws draws;
    if (std::exchange(scope.fontsAreRead, true)) {
        return draws;
    }
    for (QPDFObjectHandle font : type3Fonts(scope.resources)) {
        QPDFObjectHandle glyphs = font.getKey("/CharProcs");
        if (!glyphs.isDictionary() || !isFirstVisit(font, m_fontsRead)) {
            continue;
        }
        QPDFObjectHandle own = font.getKey("/Resources");
        const auto inner = own.isDictionary() ? scopeOf(own) : nullptr;
        for (auto &[name, glyph] : glyphs.ditems()) {
            draws.addUnclear(readForm(glyph, inner ? *inner : scope));
        }
    }
    return draws;
}

} // namespace folioforge
