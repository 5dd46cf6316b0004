// SPDX-License-Identifier: Apache-2.0

#include "pdf/DocumentParts.h"

#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

constexpr std::array kWords{
    PartWords{PartKind::StructureElements, "structure-elements"_L1, "1 structure tag"_L1,
              "%1 structure tags"_L1},
    PartWords{PartKind::Attachments, "attachments"_L1, "1 attachment"_L1, "%1 attachments"_L1},
    PartWords{PartKind::Portfolio, "portfolio"_L1, "a portfolio"_L1, {}},
    PartWords{PartKind::XfaForm, "xfa-form"_L1, "an XFA form"_L1, {}},
    PartWords{PartKind::Scripts, "scripts"_L1, "document scripts"_L1, {}},
    PartWords{PartKind::PageTemplates, "page-templates"_L1, "page templates"_L1, {}},
    PartWords{PartKind::ArticleThreads, "article-threads"_L1, "article threads"_L1, {}},
    PartWords{PartKind::LayerSettings, "layer-settings"_L1, "further layer settings"_L1, {}},
    PartWords{PartKind::BaseAddress, "base-address"_L1, "a base address of links"_L1, {}},
    PartWords{PartKind::UsageRights, "usage-rights"_L1, "usage rights"_L1, {}},
    PartWords{PartKind::Language, "language"_L1, "the language"_L1, {}},
    PartWords{PartKind::Metadata, "metadata"_L1, "metadata"_L1, {}},
    PartWords{PartKind::Properties, "properties"_L1, "1 further document property"_L1,
              "%1 further document properties"_L1},
    PartWords{PartKind::OutputIntents, "output-intents"_L1, "output intents"_L1, {}},
    PartWords{PartKind::Signatures, "signatures"_L1, "1 signature"_L1, "%1 signatures"_L1},
    PartWords{PartKind::Links, "links"_L1, "1 link"_L1, "%1 links"_L1},
    PartWords{PartKind::Annotations, "annotations"_L1, "1 annotation"_L1, "%1 annotations"_L1},
    PartWords{PartKind::Bookmarks, "bookmarks"_L1, "1 bookmark"_L1, "%1 bookmarks"_L1},
    PartWords{PartKind::PageLabels, "page-labels"_L1, "page labels"_L1, {}},
    PartWords{PartKind::Fields, "fields"_L1, "1 field"_L1, "%1 fields"_L1},
    PartWords{PartKind::Layers, "layers"_L1, "1 layer"_L1, "%1 layers"_L1},
    PartWords{PartKind::Destinations, "destinations"_L1, "1 named destination"_L1,
              "%1 named destinations"_L1},
    PartWords{PartKind::FurtherNames, "further-names"_L1, "further names"_L1, {}},
    PartWords{PartKind::FurtherEntries, "further-entries"_L1, "1 further catalog entry"_L1,
              "%1 further catalog entries"_L1},
    PartWords{PartKind::RenamedNames, "renamed-names"_L1, "1 renamed name"_L1,
              "%1 renamed names"_L1},
};

constexpr std::size_t indexOf(PartKind kind) {
    return static_cast<std::size_t>(kind);
}

constexpr bool inOrder() {
    for (std::size_t i = 0; i < kWords.size(); ++i) {
        if (indexOf(kWords.at(i).kind) != i) {
            return false;
        }
    }
    return true;
}
static_assert(inOrder());

} // namespace

std::span<const PartWords> partWords() {
    return kWords;
}

QLatin1StringView nameOf(PartKind kind) {
    return kWords.at(indexOf(kind)).name;
}

QString inWords(const PartCounts &parts) {
    QStringList all;
    for (const auto &[kind, count] : parts) {
        const PartWords &words = kWords.at(indexOf(kind));
        all += count == 1 || words.several.isEmpty() ? QString(words.one)
                                                     : QString(words.several).arg(count);
    }
    return all.join(u", "_s);
}

void addParts(PartCounts &parts, PartKind kind, std::size_t count) {
    if (count > 0) {
        parts[kind] += count;
    }
}

} // namespace folioforge
