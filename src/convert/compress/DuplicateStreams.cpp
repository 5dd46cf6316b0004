#include "convert/compress/DuplicateStreams.h"

#include <QCryptographicHash>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace folioforge {

namespace {

using Replacements = std::map<QPDFObjGen, QPDFObjectHandle>;

/// What is shared between pages by reference; metadata or content streams are not.
bool isShared(QPDFObjectHandle stream) {
    QPDFObjectHandle dictionary = stream.getDict();
    return dictionary.getKey("/Type").isNameAndEquals("/XObject") ||
           dictionary.getKey("/Subtype").isNameAndEquals("/Image") ||
           dictionary.getKey("/Subtype").isNameAndEquals("/Form") ||
           dictionary.hasKey("/Length1") || dictionary.hasKey("/N") ||
           dictionary.getKey("/Subtype").isNameAndEquals("/CIDFontType0C") ||
           dictionary.getKey("/Subtype").isNameAndEquals("/Type1C") ||
           dictionary.getKey("/Subtype").isNameAndEquals("/OpenType");
}

QByteArray digest(QPDFObjectHandle stream) {
    const auto data = stream.getRawStreamData();
    QCryptographicHash hash(QCryptographicHash::Blake2b_256);
    hash.addData(QByteArrayView(data->getBuffer(), static_cast<qsizetype>(data->getSize())));
    return hash.result();
}

/// Streams whose dictionaries, the length included, are written alike; only these are read.
std::vector<std::vector<QPDFObjectHandle>> candidates(QPDF &document) {
    std::map<std::string, std::vector<QPDFObjectHandle>> groups;
    for (QPDFObjectHandle &object : document.getAllObjects()) {
        if (object.isStream() && isShared(object)) {
            groups[object.getDict().unparseResolved()].push_back(object);
        }
    }
    std::vector<std::vector<QPDFObjectHandle>> several;
    for (auto &[text, group] : groups) {
        if (group.size() > 1) {
            several.push_back(std::move(group));
        }
    }
    return several;
}

Replacements findDuplicates(QPDF &document) {
    Replacements replacements;
    for (const auto &group : candidates(document)) {
        std::map<QByteArray, QPDFObjectHandle> first;
        for (const QPDFObjectHandle &stream : group) {
            try {
                const auto [place, isNew] = first.try_emplace(digest(stream), stream);
                if (!isNew) {
                    replacements.emplace(stream.getObjGen(), place->second);
                }
            } catch (const std::exception &) {
                continue; // Damaged data is equal to nothing.
            }
        }
    }
    return replacements;
}

/// The stream that stands for `item` where it is a duplicate, else nothing.
const QPDFObjectHandle *replacementOf(QPDFObjectHandle item, const Replacements &replacements) {
    if (!item.isIndirect()) {
        return nullptr;
    }
    const auto found = replacements.find(item.getObjGen());
    return found == replacements.end() ? nullptr : &found->second;
}

void redirect(QPDFObjectHandle container, const Replacements &replacements);

void redirectInner(QPDFObjectHandle item, const Replacements &replacements) {
    if (!item.isIndirect() && (item.isArray() || item.isDictionary())) {
        redirect(item, replacements);
    }
}

void redirect(QPDFObjectHandle container, const Replacements &replacements) {
    if (container.isArray()) {
        for (int i = 0; i < container.getArrayNItems(); ++i) {
            QPDFObjectHandle item = container.getArrayItem(i);
            if (const QPDFObjectHandle *other = replacementOf(item, replacements)) {
                container.setArrayItem(i, *other);
            } else {
                redirectInner(item, replacements);
            }
        }
        return;
    }
    QPDFObjectHandle dictionary = container.isStream() ? container.getDict() : container;
    if (!dictionary.isDictionary()) {
        return;
    }
    for (auto &[key, item] : dictionary.getDictAsMap()) {
        if (const QPDFObjectHandle *other = replacementOf(item, replacements)) {
            dictionary.replaceKey(key, *other);
        } else {
            redirectInner(item, replacements);
        }
    }
}

} // namespace

void mergeDuplicateStreams(QPDF &document) {
    // Images alike but for their soft masks become alike when the masks have become one.
    constexpr int kRounds = 2;
    for (int round = 0; round < kRounds; ++round) {
        const Replacements replacements = findDuplicates(document);
        if (replacements.empty()) {
            return;
        }
        for (const QPDFObjectHandle &object : document.getAllObjects()) {
            redirect(object, replacements);
        }
    }
}

} // namespace folioforge
