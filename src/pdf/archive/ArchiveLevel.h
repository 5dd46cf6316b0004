// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/XmpPacket.h"

#include <QByteArray>
#include <QString>

namespace folioforge {

struct PictureLimits;

/// The standards for archives that a document can be asked to keep (ISO 19005).
enum class ArchiveLevel {
    PdfA1b, ///< Looks the same for ever.
    PdfA2u, ///< And all of its text is Unicode.
    PdfA2a, ///< And is tagged.
    PdfA3u, ///< As the one of part 2, and may hold any file.
    PdfA3a
};

/// What such a document says of itself.
Claims claimsOf(ArchiveLevel level);
/// The part of the standard: 1, 2 or 3.
int partOf(ArchiveLevel level);

/// What its pictures may have.
PictureLimits pictureLimitsOf(ArchiveLevel level);

/// Whether its documents are tagged.
bool isTagged(ArchiveLevel level);

/// How a document for archives is made.
struct ArchiveOptions {
    ArchiveLevel level = ArchiveLevel::PdfA2u;
    /// What does not keep the standard goes in, and the document does not say that it keeps it;
    /// else it is refused.
    bool fallback = false;
    QByteArray inkProfile;     ///< The ICC profile of inks that have none; empty for none.
    bool embedSources = false; ///< Each source file is attached; for part 3 alone.
};

/// Why a document made of the source with these claims cannot keep `level`; empty where it can.
/// Whether the claims are true is not looked at. `hasFiles` says whether the source has files
/// attached.
QString reasonAgainst(const Claims &claims, ArchiveLevel level, bool hasFiles);

} // namespace folioforge
