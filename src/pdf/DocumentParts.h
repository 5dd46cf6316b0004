// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLatin1StringView>
#include <QString>

#include <cstddef>
#include <map>
#include <span>

namespace folioforge {

/// A kind of what a PDF has beside the look of its pages, in the order in which warnings name them.
/// DocumentParts.cpp has the words for each.
enum class PartKind {
    StructureElements,
    Attachments,
    Portfolio,
    XfaForm,
    Scripts,
    PageTemplates,
    ArticleThreads,
    LayerSettings,
    BaseAddress,
    UsageRights,
    Language, ///< Where no structure tag is there to say it.
    Metadata,
    Properties, ///< Of the document information, of one's own.
    OutputIntents,
    Signatures,
    Links,
    Annotations, ///< Neither links nor the widgets of fields.
    Bookmarks,
    PageLabels,
    Fields,
    Layers,
    Destinations,
    FurtherNames,   ///< Tables of names that the standard does not know.
    FurtherEntries, ///< Of the catalog, such as what a program keeps for itself.
    RenamedNames,   ///< To be told apart from those of other sources.
};

/// How many there are of each kind; a kind of which there is none is absent.
using PartCounts = std::map<PartKind, std::size_t>;

/// What of a source document is in the document that is made, and what is not.
struct DocumentParts {
    PartCounts carried;
    PartCounts left;
};

/// What a kind is called.
struct PartWords {
    PartKind kind;
    QLatin1StringView name; ///< In reports. It never changes, because scripts read it.
    const char *one;        ///< In a sentence, of one.
    const char *several;    ///< In a sentence, of %n. None where it is as for one.
};

/// The words for every kind, in the order of their declaration.
std::span<const PartWords> partWords();
/// The name of a kind in reports, such as "attachments".
QLatin1StringView nameOf(PartKind kind);
/// All of `parts` in a part of a sentence, such as "structure tags, 2 attachments".
QString inWords(const PartCounts &parts);
/// Adds `count` parts of `kind`.
void addParts(PartCounts &parts, PartKind kind, std::size_t count);

} // namespace folioforge
