// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLatin1StringView>
#include <QString>

#include <array>
#include <cstddef>
#include <vector>

namespace folioforge {

/// What kind of loss a warning tells of. The manual page says what each means.
enum class WarningCode {
    FolderEntriesLeft, ///< A folder holds more than the texts and pictures that were taken.
    TextNotUtf8,       ///< A text is not valid UTF-8.
    TextUnreadable,    ///< A text could not be read when it was listed.
    MissingGlyphs,     ///< No font of the system has a glyph for some characters.
    PictureDamaged,    ///< A picture is cut off or damaged; what could be decoded is there.
    MorePictures,      ///< A file holds more pictures than the one that was taken.
    PdfWithoutPages,   ///< A source PDF has no page.
    PdfRepaired,       ///< A source PDF is damaged and was repaired; its pages may lack something.
    PdfPagesLost,      ///< Pages of a source PDF cannot be read, in whole or in part.
    PdfPartsLeft,      ///< A source PDF has parts that are not carried over.
    StructureDamaged,  ///< Parts of the structure tree of a source PDF cannot be read.
    PartlyTagged,      ///< Sources without structure tags stand beside tagged ones.
    SignatureRemoved,  ///< A source PDF is signed, and the signature holds no longer.
    FieldsRenamed,    ///< Form fields got other names, since another document has fields of theirs.
    ClaimDropped,     ///< A source PDF says that it keeps a standard which the PDF does not keep.
    PageSize,         ///< A page is smaller or larger than readers are required to show.
    NotFlushed,       ///< The file system cannot flush a file to the disk.
    EncodingGuessed,  ///< Only the frequency of its bytes tells the encoding of a text.
    ProtectionLeft,   ///< A source PDF is protected, and the PDF made of it is not, or otherwise.
    MarginTextCut,    ///< A header or a footer has more rows than its margin has room for.
    ColorsDiffer,     ///< A picture has colours that a PDF shows otherwise.
    OpacityBlended,   ///< A picture is partly transparent and is laid on white.
    ClaimTaken,       ///< A source PDF says that it keeps a standard, and the PDF says so after it.
    ClaimMissing,     ///< The PDF does not say that it keeps the standard that was asked for.
    LaidOutOtherwise, ///< A finished PDF holds all of an input, but not where it would stand now.
    TagsUnchecked,    ///< The tags of a source PDF are taken as they are.
    DescriptionMissing, ///< Only the name of its file tells what a picture shows.
};

/// The names of the codes in reports, in the order of their declaration. They never change, because
/// scripts read them.
inline constexpr std::array kWarningNames{
    QLatin1StringView("folder-entries-left"), QLatin1StringView("text-not-utf8"),
    QLatin1StringView("text-unreadable"),     QLatin1StringView("missing-glyphs"),
    QLatin1StringView("picture-damaged"),     QLatin1StringView("more-pictures"),
    QLatin1StringView("pdf-without-pages"),   QLatin1StringView("pdf-repaired"),
    QLatin1StringView("pdf-pages-lost"),      QLatin1StringView("pdf-parts-left"),
    QLatin1StringView("structure-damaged"),   QLatin1StringView("partly-tagged"),
    QLatin1StringView("signature-removed"),   QLatin1StringView("fields-renamed"),
    QLatin1StringView("claim-dropped"),       QLatin1StringView("page-size"),
    QLatin1StringView("not-flushed"),         QLatin1StringView("encoding-guessed"),
    QLatin1StringView("protection-left"),     QLatin1StringView("margin-text-cut"),
    QLatin1StringView("colors-differ"),       QLatin1StringView("opacity-blended"),
    QLatin1StringView("claim-taken"),         QLatin1StringView("claim-missing"),
    QLatin1StringView("laid-out-otherwise"),  QLatin1StringView("tags-unchecked"),
    QLatin1StringView("description-missing"),
};
static_assert(kWarningNames.size() ==
              static_cast<std::size_t>(WarningCode::DescriptionMissing) + 1);

/// What was lost or changed on the way of an entry that was written.
struct Warning {
    WarningCode code = WarningCode::TextNotUtf8;
    QString text; ///< A sentence without the file's name and without a full stop.

    bool operator==(const Warning &) const = default;

    /// The name of the code in reports, such as "missing-glyphs".
    [[nodiscard]] QLatin1StringView name() const {
        return kWarningNames.at(static_cast<std::size_t>(code));
    }
};

using Warnings = std::vector<Warning>;

} // namespace folioforge
