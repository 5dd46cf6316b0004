// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/OutputIntents.h"

#include "pdf/BoundedBuffer.h"
#include "pdf/import/Entries.h"
#include "pdf/import/ObjectCopier.h"
#include "pdf/import/SourceNames.h"

#include <qpdf/QPDF.hh>

#include <QCryptographicHash>

#include <map>
#include <string>

namespace folioforge {

namespace {

/// A hash of the data of a profile without its filters; nothing where it is damaged or far too long
/// for one.
std::optional<QByteArray> profileHash(const QPDFObjectHandle &profile) {
    constexpr std::size_t kMaxBytes = 16 << 20;
    const auto data = boundedData(profile, kMaxBytes);
    return data ? std::optional(QCryptographicHash::hash(*data, QCryptographicHash::Sha256))
                : std::nullopt;
}

std::optional<QByteArray> meaningOf(const std::vector<QPDFObjectHandle> &intents) {
    QByteArray meaning;
    std::map<QPDFObjGen, std::optional<QByteArray>> hashes; // Intents may share a profile.
    const auto hashOf = [&hashes](const QPDFObjectHandle &profile) {
        const auto [hash, isNew] = hashes.try_emplace(profile.getObjGen());
        if (isNew) {
            hash->second = profileHash(profile);
        }
        return hash->second;
    };
    for (const auto &intent : intents) {
        auto standard = entry(intent, "/S");
        auto condition = entry(intent, "/OutputConditionIdentifier");
        auto profile = entry(intent, "/DestOutputProfile");
        // Whoever embeds a profile may call it as he likes.
        auto what = profile.isStream() ? hashOf(profile)
                    : condition.isString()
                        ? std::optional(QByteArray::fromStdString(nameText(condition)))
                        : std::nullopt;
        if (!what) {
            return std::nullopt;
        }
        meaning += standard.isName() ? standard.getName() : std::string();
        meaning += ' ' + QByteArray::number(what->size()) + ' ' + *what;
    }
    return meaning;
}

int componentsOf(const std::vector<QPDFObjectHandle> &intents) {
    for (const auto &intent : intents) {
        auto profile = entry(intent, "/DestOutputProfile");
        if (entry(intent, "/S").isNameAndEquals("/GTS_PDFA1") && profile.isStream() &&
            profile.getDict().getKey("/N").isInteger()) {
            return profile.getDict().getKey("/N").getIntValueAsInt();
        }
    }
    return 0;
}

} // namespace

ImportedOutputIntents importOutputIntents(QPDF &source, ObjectCopier &copier) {
    auto intents = source.getRoot().getKey("/OutputIntents");
    const auto meaning = meaningOf(items(intents));
    const int components = componentsOf(items(intents)); // Copying takes streams from it.
    return {copier.copyItems(intents), meaning, components};
}

void OutputIntentMerger::add(const ImportedOutputIntents &imported) {
    m_any = m_any || !imported.intents.empty();
    if (m_firstIntents.empty()) {
        m_firstIntents = imported.intents;
    }
    if (!m_first) {
        m_first = imported;
    } else if (!imported.meaning || imported.meaning != m_first->meaning) {
        m_agree = false;
    }
}

void OutputIntentMerger::finish(QPDF &document) const {
    if (m_otherwise) {
        putItems(document.getRoot(), "/OutputIntents",
                 m_firstIntents.empty() ? std::vector{*m_otherwise} : m_firstIntents);
        return;
    }
    if (m_first && m_agree) {
        putItems(document.getRoot(), "/OutputIntents", m_first->intents);
    }
}

} // namespace folioforge
