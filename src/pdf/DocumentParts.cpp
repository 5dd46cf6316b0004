// SPDX-License-Identifier: Apache-2.0

#include "pdf/DocumentParts.h"

#include "error/Reasons.h"

#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

constexpr std::array kWords{
    PartWords{PartKind::StructureElements, "structure-elements"_L1,
              QT_TRANSLATE_NOOP("Reasons", "1 structure tag"),
              QT_TRANSLATE_N_NOOP("Reasons", "%n structure tags")},
    PartWords{PartKind::Attachments, "attachments"_L1, QT_TRANSLATE_NOOP("Reasons", "1 attachment"),
              QT_TRANSLATE_N_NOOP("Reasons", "%n attachments")},
    PartWords{PartKind::Portfolio, "portfolio"_L1, QT_TRANSLATE_NOOP("Reasons", "a portfolio"),
              nullptr},
    PartWords{PartKind::XfaForm, "xfa-form"_L1, QT_TRANSLATE_NOOP("Reasons", "an XFA form"),
              nullptr},
    PartWords{PartKind::Scripts, "scripts"_L1, QT_TRANSLATE_NOOP("Reasons", "document scripts"),
              nullptr},
    PartWords{PartKind::PageTemplates, "page-templates"_L1,
              QT_TRANSLATE_NOOP("Reasons", "page templates"), nullptr},
    PartWords{PartKind::ArticleThreads, "article-threads"_L1,
              QT_TRANSLATE_NOOP("Reasons", "article threads"), nullptr},
    PartWords{PartKind::LayerSettings, "layer-settings"_L1,
              QT_TRANSLATE_NOOP("Reasons", "further layer settings"), nullptr},
    PartWords{PartKind::BaseAddress, "base-address"_L1,
              QT_TRANSLATE_NOOP("Reasons", "a base address of links"), nullptr},
    PartWords{PartKind::UsageRights, "usage-rights"_L1,
              QT_TRANSLATE_NOOP("Reasons", "usage rights"), nullptr},
    PartWords{PartKind::Language, "language"_L1, QT_TRANSLATE_NOOP("Reasons", "the language"),
              nullptr},
    PartWords{PartKind::Metadata, "metadata"_L1, QT_TRANSLATE_NOOP("Reasons", "metadata"), nullptr},
    PartWords{PartKind::Properties, "properties"_L1,
              QT_TRANSLATE_NOOP("Reasons", "1 further document property"),
              QT_TRANSLATE_N_NOOP("Reasons", "%n further document properties")},
    PartWords{PartKind::OutputIntents, "output-intents"_L1,
              QT_TRANSLATE_NOOP("Reasons", "output intents"), nullptr},
    PartWords{PartKind::Signatures, "signatures"_L1, QT_TRANSLATE_NOOP("Reasons", "1 signature"),
              QT_TRANSLATE_N_NOOP("Reasons", "%n signatures")},
    PartWords{PartKind::Links, "links"_L1, QT_TRANSLATE_NOOP("Reasons", "1 link"),
              QT_TRANSLATE_N_NOOP("Reasons", "%n links")},
    PartWords{PartKind::Annotations, "annotations"_L1, QT_TRANSLATE_NOOP("Reasons", "1 annotation"),
              QT_TRANSLATE_N_NOOP("Reasons", "%n annotations")},
    PartWords{PartKind::Bookmarks, "bookmarks"_L1, QT_TRANSLATE_NOOP("Reasons", "1 bookmark"),
              QT_TRANSLATE_N_NOOP("Reasons", "%n bookmarks")},
    PartWords{PartKind::PageLabels, "page-labels"_L1, QT_TRANSLATE_NOOP("Reasons", "page labels"),
              nullptr},
    PartWords{PartKind::Fields, "fields"_L1, QT_TRANSLATE_NOOP("Reasons", "1 field"),
              QT_TRANSLATE_N_NOOP("Reasons", "%n fields")},
    PartWords{PartKind::Layers, "layers"_L1, QT_TRANSLATE_NOOP("Reasons", "1 layer"),
              QT_TRANSLATE_N_NOOP("Reasons", "%n layers")},
    PartWords{PartKind::Destinations, "destinations"_L1,
              QT_TRANSLATE_NOOP("Reasons", "1 named destination"),
              QT_TRANSLATE_N_NOOP("Reasons", "%n named destinations")},
    PartWords{PartKind::FurtherNames, "further-names"_L1,
              QT_TRANSLATE_NOOP("Reasons", "further names"), nullptr},
    PartWords{PartKind::FurtherEntries, "further-entries"_L1,
              QT_TRANSLATE_NOOP("Reasons", "1 further catalog entry"),
              QT_TRANSLATE_N_NOOP("Reasons", "%n further catalog entries")},
    PartWords{PartKind::RenamedNames, "renamed-names"_L1,
              QT_TRANSLATE_NOOP("Reasons", "1 renamed name"),
              QT_TRANSLATE_N_NOOP("Reasons", "%n renamed names")},
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
        all += count == 1 || words.several == nullptr
                   ? Reasons::tr(words.one)
                   : Reasons::tr(words.several, nullptr, static_cast<int>(count));
    }
    return Reasons::listed(all);
}

void addParts(PartCounts &parts, PartKind kind, std::size_t count) {
    if (count > 0) {
        parts[kind] += count;
    }
}

} // namespace folioforge
