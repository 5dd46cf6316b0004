// SPDX-License-Identifier: Apache-2.0

#include "compress/DuplicateStreams.h"

#include "compress/SharableStreams.h"

#include <QCryptographicHash>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace folioforge {

namespace {

using Replacements = std::map<QPDFObjGen, QPDFObjectHandle>;

QByteArray digest(QPDFObjectHandle stream) {
    const auto data = stream.getRawStreamData();
    QCryptographicHash hash(QCryptographicHash::Blake2b_256);
    hash.addData(QByteArrayView(data->getBuffer(), static_cast<qsizetype>(data->getSize())));
    return hash.result();
}

/// Streams whose dictionaries, the length included, are written alike; only these are read.
std::vector<std::vector<QPDFObjectHandle>> candidates(QPDF &document) {
    std::map<std::string, std::vector<QPDFObjectHandle>> groups;
    for (QPDFObjectHandle &stream : sharableStreams(document)) {
        groups[stream.getDict().unparseResolved()].push_back(stream);
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

void redirect(QPDFObjectHandle container, const Replacements &replacements) {
    const auto replacementOf = [&replacements](const QPDFObjectHandle &item) {
        return item.isIndirect() ? replacements.find(item.getObjGen()) : replacements.end();
    };
    if (container.isArray()) {
        for (int i = 0; i < container.getArrayNItems(); ++i) {
            const auto found = replacementOf(container.getArrayItem(i));
            if (found != replacements.end()) {
                container.setArrayItem(i, found->second);
            }
        }
        return;
    }
    for (const auto &[key, item] : container.getDictAsMap()) {
        if (const auto found = replacementOf(item); found != replacements.end()) {
            container.replaceKey(key, found->second);
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
        visitArraysAndDictionaries(document, [&replacements](const QPDFObjectHandle &container) {
            redirect(container, replacements);
        });
    }
}

} // namespace folioforge
