// SPDX-License-Identifier: Apache-2.0

#include "compress/SharableStreams.h"

#include "compress/Resources.h"

#include <set>
#include <vector>

#include <qpdf/QPDFObjGen.hh>

namespace folioforge {

namespace {

void addDirect(QPDFObjectHandle item, std::vector<QPDFObjectHandle> &open) {
    if (!item.isIndirect() && (item.isArray() || item.isDictionary())) {
        open.push_back(item);
    }
}

/// The arrays and dictionaries directly within one.
void addInner(QPDFObjectHandle container, std::vector<QPDFObjectHandle> &open) {
    if (container.isArray()) {
        for (const QPDFObjectHandle &item : container.aitems()) {
            addDirect(item, open);
        }
    } else {
        for (const auto &[key, item] : container.ditems()) {
            addDirect(item, open);
        }
    }
}

/// The forms that annotations draw, with the forms inside them.
class AnnotationForms {
  public:
    explicit AnnotationForms(QPDF &document) {
        visitArraysAndDictionaries(document, [this](QPDFObjectHandle container) {
            if (container.isDictionary()) {
                addStreamsOf(container.getKey("/AP"));
                addStreamsOf(container.getKey("/MK"));
            }
        });
        while (!m_open.empty()) {
            QPDFObjectHandle form = m_open.back();
            m_open.pop_back();
            for (const QPDFObjectHandle &inner :
                 drawableStreams(form.getDict().getKey("/Resources"))) {
                add(inner);
            }
        }
    }

    [[nodiscard]] bool contains(const QPDFObjectHandle &form) const {
        return m_forms.contains(form.getObjGen());
    }

  private:
    /// An appearance is a stream, or a dictionary with one for each state of its annotation.
    void addStreamsOf(QPDFObjectHandle appearances) {
        if (!appearances.isDictionary()) {
            return;
        }
        for (auto &[kind, appearance] : appearances.ditems()) {
            add(appearance);
            if (appearance.isDictionary()) {
                for (const auto &[state, form] : appearance.ditems()) {
                    add(form);
                }
            }
        }
    }

    void add(QPDFObjectHandle form) {
        if (form.isStream() && !isImage(form) && m_forms.insert(form.getObjGen()).second) {
            m_open.push_back(form);
        }
    }

    std::set<QPDFObjGen> m_forms;
    std::vector<QPDFObjectHandle> m_open;
};

bool isFontProgram(QPDFObjectHandle dictionary) {
    QPDFObjectHandle kind = dictionary.getKey("/Subtype");
    return dictionary.hasKey("/Length1") || kind.isNameAndEquals("/Type1C") ||
           kind.isNameAndEquals("/CIDFontType0C") || kind.isNameAndEquals("/OpenType");
}

bool isColorProfile(QPDFObjectHandle dictionary) {
    return dictionary.getKey("/N").isInteger() && !dictionary.hasKey("/Type");
}

bool isForm(QPDFObjectHandle dictionary) {
    return dictionary.getKey("/Subtype").isNameAndEquals("/Form");
}

} // namespace

void visitArraysAndDictionaries(QPDF &document,
                                const std::function<void(QPDFObjectHandle)> &visit) {
    std::vector<QPDFObjectHandle> open;
    for (QPDFObjectHandle &object : document.getAllObjects()) {
        QPDFObjectHandle whole = object.isStream() ? object.getDict() : object;
        if (whole.isArray() || whole.isDictionary()) {
            open.push_back(whole);
        }
        while (!open.empty()) {
            const QPDFObjectHandle container = open.back();
            open.pop_back();
            visit(container);
            addInner(container, open);
        }
    }
}

std::vector<QPDFObjectHandle> sharableStreams(QPDF &document) {
    const AnnotationForms annotationForms(document);
    std::vector<QPDFObjectHandle> streams;
    for (QPDFObjectHandle &object : document.getAllObjects()) {
        if (!object.isStream()) {
            continue;
        }
        const QPDFObjectHandle dictionary = object.getDict();
        if (isImage(object) || isFontProgram(dictionary) || isColorProfile(dictionary) ||
            (isForm(dictionary) && !annotationForms.contains(object))) {
            streams.push_back(object);
        }
    }
    return streams;
}

} // namespace folioforge
