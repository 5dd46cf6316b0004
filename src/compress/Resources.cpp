// SPDX-License-Identifier: Apache-2.0

#include "compress/Resources.h"

#include "pdf/import/Entries.h"

namespace folioforge {

namespace {

/// The values of a dictionary within a dictionary; none where either is missing.
std::vector<QPDFObjectHandle> valuesOf(QPDFObjectHandle dictionary, const char *key) {
    std::vector<QPDFObjectHandle> values;
    QPDFObjectHandle inner = dictionary.isDictionary() ? dictionary.getKey(key) : dictionary;
    if (inner.isDictionary()) {
        for (auto &[name, value] : inner.ditems()) {
            values.push_back(value);
        }
    }
    return values;
}

bool isType3(QPDFObjectHandle font) {
    return font.isDictionary() && font.getKey("/Subtype").isNameAndEquals("/Type3");
}

/// Walks from resources to resources and notes the images on its way.
class ImageWalk {
  public:
    void enter(const QPDFObjectHandle &resources) {
        m_open.push_back(resources);
        while (!m_open.empty()) {
            const QPDFObjectHandle next = m_open.back();
            m_open.pop_back();
            if (isFirstVisit(next, m_seen)) {
                look(next);
            }
        }
    }

    std::set<QPDFObjGen> images;

  private:
    void look(const QPDFObjectHandle &resources) {
        for (const QPDFObjectHandle &stream : drawableStreams(resources)) {
            visit(stream);
        }
        for (QPDFObjectHandle font : type3Fonts(resources)) {
            m_open.push_back(font.getKey("/Resources"));
            for (const QPDFObjectHandle &glyph : valuesOf(font, "/CharProcs")) {
                visit(glyph);
            }
        }
    }

    void visit(QPDFObjectHandle stream) {
        if (!stream.isStream() || !isFirstVisit(stream, m_seen)) {
            return;
        }
        if (isImage(stream)) {
            images.insert(stream.getObjGen());
        } else {
            m_open.push_back(stream.getDict().getKey("/Resources"));
        }
    }

    std::vector<QPDFObjectHandle> m_open;
    std::set<QPDFObjGen> m_seen;
};

} // namespace

bool isImage(QPDFObjectHandle object) {
    return object.isStream() && object.getDict().getKey("/Subtype").isNameAndEquals("/Image");
}

QPDFObjectHandle resource(QPDFObjectHandle resources, const char *kind, const std::string &name) {
    if (!resources.isDictionary()) {
        return QPDFObjectHandle::newNull();
    }
    QPDFObjectHandle all = resources.getKey(kind);
    return all.isDictionary() ? all.getKey(name) : QPDFObjectHandle::newNull();
}

std::vector<QPDFObjectHandle> drawableStreams(const QPDFObjectHandle &resources) {
    std::vector<QPDFObjectHandle> streams;
    const auto add = [&streams](QPDFObjectHandle object) {
        if (object.isStream()) {
            streams.push_back(object);
        }
    };
    for (const char *kind : {"/XObject", "/Pattern"}) {
        for (const QPDFObjectHandle &object : valuesOf(resources, kind)) {
            add(object);
        }
    }
    for (QPDFObjectHandle state : valuesOf(resources, "/ExtGState")) {
        if (state.isDictionary() && state.getKey("/SMask").isDictionary()) {
            add(state.getKey("/SMask").getKey("/G"));
        }
    }
    return streams;
}

std::vector<QPDFObjectHandle> type3Fonts(const QPDFObjectHandle &resources) {
    std::vector<QPDFObjectHandle> fonts;
    for (const QPDFObjectHandle &font : valuesOf(resources, "/Font")) {
        if (isType3(font)) {
            fonts.push_back(font);
        }
    }
    for (QPDFObjectHandle state : valuesOf(resources, "/ExtGState")) {
        QPDFObjectHandle choice = state.isDictionary() ? state.getKey("/Font") : state;
        if (choice.isArray() && choice.getArrayNItems() > 0 && isType3(choice.getArrayItem(0))) {
            fonts.push_back(choice.getArrayItem(0));
        }
    }
    return fonts;
}

std::set<QPDFObjGen> imagesBehind(const QPDFObjectHandle &resources) {
    ImageWalk walk;
    walk.enter(resources);
    return std::move(walk.images);
}

} // namespace folioforge
