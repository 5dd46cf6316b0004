// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/SharedStreams.h"

#include "pdf/import/Entries.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <array>
#include <vector>

namespace folioforge {

namespace {

using Objects = std::vector<QPDFObjGen>;
using References = std::map<QPDFObjGen, Objects>;

/// The objects from which a way along `references` begins or which it reaches.
std::set<QPDFObjGen> reachable(Objects open, const References &references) {
    std::set<QPDFObjGen> reached;
    while (!open.empty()) {
        const QPDFObjGen object = open.back();
        open.pop_back();
        const auto next = references.find(object);
        if (reached.insert(object).second && next != references.end()) {
            open.insert(open.end(), next->second.begin(), next->second.end());
        }
    }
    return reached;
}

bool isLayer(QPDFObjectHandle dictionary) {
    return dictionary.isDictionaryOfType("/OCG") || dictionary.isDictionaryOfType("/OCMD");
}

/// Whether a form or an image has a key in the parent tree of its document.
bool isTagged(QPDFObjectHandle dictionary) {
    return dictionary.hasKey("/StructParent") || dictionary.hasKey("/StructParents");
}

/// Which objects of a document refer to which.
class ObjectGraph {
  public:
    explicit ObjectGraph(QPDF &document) {
        for (const QPDFObjectHandle &object : document.getAllObjects()) {
            read(object);
        }
    }

    /// The objects that every copy of the document needs for itself, streams among them.
    [[nodiscard]] std::set<QPDFObjGen> copiedEachTime() const {
        std::set<QPDFObjGen> objects = reachable(m_ofOneCopy, m_users);
        objects.insert(m_appearances.begin(), m_appearances.end());
        for (const QPDFObjGen object : reachable(m_appearances, m_uses)) {
            if (m_forms.contains(object)) {
                objects.insert(object);
            }
        }
        return objects;
    }

  private:
    void read(QPDFObjectHandle object) {
        const QPDFObjGen owner = object.getObjGen();
        if (object.isFormXObject()) {
            m_forms.insert(owner);
        }
        if (object.isStream() && isTagged(object.getDict())) {
            m_ofOneCopy.push_back(owner);
        }
        std::vector<QPDFObjectHandle> open{object.isStream() ? object.getDict() : object};
        while (!open.empty()) {
            QPDFObjectHandle container = open.back();
            open.pop_back();
            for (const QPDFObjectHandle &item : items(container)) {
                add(owner, item, open);
            }
            if (container.isDictionary()) {
                readKeys(owner, container);
                for (const auto &[key, item] : container.getDictAsMap()) {
                    add(owner, item, open);
                }
            }
        }
    }

    void add(QPDFObjGen owner, const QPDFObjectHandle &item, std::vector<QPDFObjectHandle> &open) {
        if (item.isIndirect()) {
            m_uses[owner].push_back(item.getObjGen());
            m_users[item.getObjGen()].push_back(owner);
        } else {
            open.push_back(item);
        }
    }

    void readKeys(QPDFObjGen owner, QPDFObjectHandle dictionary) {
        if (isLayer(dictionary)) {
            m_ofOneCopy.push_back(owner);
        }
        const auto marked = dictionary.getKey("/Stm"); // Of a structure element.
        if (marked.isIndirect() && dictionary.hasKey("/MCID")) {
            m_ofOneCopy.push_back(marked.getObjGen());
        }
        for (const char *key : {"/AP", "/MK"}) {
            auto appearances = dictionary.getKey(key);
            if (appearances.isDictionary()) {
                for (auto &[kind, appearance] : appearances.getDictAsMap()) {
                    addAppearances(appearance);
                }
            }
        }
    }

    /// An appearance is a stream, or a dictionary with one for each state of its annotation.
    void addAppearances(QPDFObjectHandle appearance) {
        if (appearance.isStream()) {
            m_appearances.push_back(appearance.getObjGen());
        } else if (appearance.isDictionary()) {
            for (auto &[state, stream] : appearance.getDictAsMap()) {
                if (QPDFObjectHandle(stream).isStream()) {
                    m_appearances.push_back(stream.getObjGen());
                }
            }
        }
    }

    References m_uses;
    References m_users;
    Objects m_ofOneCopy; ///< They hold a layer, are one, or belong to a structure element.
    Objects m_appearances;
    std::set<QPDFObjGen> m_forms;
};

/// Whether the document has anything that keeps streams from being shared. Most have nothing, and
/// to read all objects takes as long as to copy them.
bool mayHaveOwnStreams(QPDF &source, const std::vector<SourcePage> &pages) {
    static constexpr std::array kKeys{"/OCProperties", "/StructTreeRoot", "/AcroForm", "/Names"};
    auto root = source.getRoot();
    const auto hasAppearance = [](QPDFObjectHandle annotation) {
        return annotation.isDictionary() && (annotation.hasKey("/AP") || annotation.hasKey("/MK"));
    };
    return std::ranges::any_of(kKeys, [&](const char *key) { return root.hasKey(key); }) ||
           std::ranges::any_of(pages, [&](const SourcePage &page) {
               return std::ranges::any_of(items(annotationsOf(page.page)), hasAppearance);
           });
}

} // namespace

void SharedStreams::beginCopy(QPDF &source, const std::vector<SourcePage> &pages) {
    if (!m_copies.empty() && !m_copiedEachTime) {
        m_copiedEachTime = mayHaveOwnStreams(source, pages) ? ObjectGraph(source).copiedEachTime()
                                                            : std::set<QPDFObjGen>();
    }
}

QPDFObjectHandle SharedStreams::find(QPDFObjGen stream) const {
    const auto found = m_copies.find(stream);
    const bool copiedEachTime = m_copiedEachTime && m_copiedEachTime->contains(stream);
    return found == m_copies.end() || copiedEachTime ? QPDFObjectHandle::newNull() : found->second;
}

} // namespace folioforge
