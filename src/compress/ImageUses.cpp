// SPDX-License-Identifier: Apache-2.0

#include "compress/ImageUses.h"

#include "compress/ContentReader.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include <qpdf/QPDFPageObjectHelper.hh>

namespace folioforge {

namespace {

/// Collects the uses of a document's images page by page.
class UseCollector {
  public:
    void addPage(QPDFObjectHandle page, int number) {
        QPDFPageObjectHelper helper(page);
        // Resources may be inherited from the page tree, where neighbours share them.
        const QPDFObjectHandle resources = helper.getAttribute("/Resources", false);
        if (!m_scope || !m_scope->resources.isSameObjectAs(resources)) {
            m_scope = m_reader.scopeOf(resources);
        }
        ContentDraws draws = m_reader.readPage(page, *m_scope);
        addAnnotations(page, *m_scope, draws);
        QPDFObjectHandle unit = page.getKey("/UserUnit");
        const double points = unit.isNumber() ? unit.getNumericValue() : 1;
        addDraws(draws, points, number);
    }

    std::vector<ImageUse> uses;

  private:
    void addAnnotations(QPDFObjectHandle page, ContentScope &scope, ContentDraws &draws) {
        QPDFObjectHandle annotations = page.getKey("/Annots");
        if (!annotations.isArray()) {
            return;
        }
        for (auto &annotation : annotations.aitems()) {
            QPDFObjectHandle states =
                annotation.isDictionary() ? annotation.getKey("/AP") : QPDFObjectHandle::newNull();
            if (!states.isDictionary()) {
                continue;
            }
            for (auto &[kind, appearance] : states.ditems()) {
                addAppearance(annotation, appearance, scope, draws);
                if (appearance.isDictionary()) {
                    for (auto &[state, form] : appearance.ditems()) {
                        addAppearance(annotation, form, scope, draws);
                    }
                }
            }
        }
    }

    /// An appearance is stretched from its transformed BBox to the annotation's Rect
    /// (ISO 32000-1, 12.5.5).
    void addAppearance(QPDFObjectHandle annotation, QPDFObjectHandle form, ContentScope &scope,
                       ContentDraws &draws) {
        if (!form.isStream()) {
            return;
        }
        const ContentDraws inner = m_reader.readForm(form, scope);
        QPDFObjectHandle box = form.getDict().getKey("/BBox");
        QPDFObjectHandle rect = annotation.getKey("/Rect");
        if (!box.isRectangle() || !rect.isRectangle()) {
            draws.addUnclear(inner);
            return;
        }
        const auto from = box.getArrayAsRectangle();
        const auto to = rect.getArrayAsRectangle();
        const Matrix2x2 m = matrixOf(form.getDict().getKey("/Matrix"));
        const double w = from.urx - from.llx;
        const double h = from.ury - from.lly;
        const double width = std::abs(w * m.a) + std::abs(h * m.c);
        const double height = std::abs(w * m.b) + std::abs(h * m.d);
        if (!(width > 0) || !(height > 0)) {
            draws.addUnclear(inner);
            return;
        }
        draws.add(inner, {(to.urx - to.llx) / width, 0, 0, (to.ury - to.lly) / height});
    }

    void addDraws(const ContentDraws &draws, double points, int page) {
        for (const auto &[image, sizes] : draws.images) {
            ImageUse &use = useOf(image, page);
            for (const Matrix2x2 &size : sizes) {
                use.width = std::max(use.width, points * std::hypot(size.a, size.b));
                use.height = std::max(use.height, points * std::hypot(size.c, size.d));
            }
        }
        for (const QPDFObjGen image : draws.unclear) {
            useOf(image, page).isUnclear = true;
        }
    }

    ImageUse &useOf(QPDFObjGen image, int page) {
        const auto [place, isNew] = m_index.try_emplace(image, uses.size());
        if (isNew) {
            uses.push_back({image, page});
        }
        return uses[place->second];
    }

    ContentReader m_reader;
    std::shared_ptr<ContentScope> m_scope; ///< Of the page that was read last.
    std::map<QPDFObjGen, std::size_t> m_index;
};

} // namespace

std::vector<ImageUse> findImageUses(QPDF &document) {
    UseCollector collector;
    int number = 0;
    for (const QPDFObjectHandle &page : document.getAllPages()) {
        collector.addPage(page, ++number);
    }
    return std::move(collector.uses);
}

} // namespace folioforge
