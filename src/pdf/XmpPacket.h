// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <optional>

class QPDF;

namespace folioforge {

/// The standards that a document says it keeps. Empty where it does not say so.
struct Claims {
    QString pdfA;        ///< The part of PDF/A, such as "2".
    QString conformance; ///< The level of PDF/A, such as "B".
    QString pdfUA;       ///< The part of PDF/UA.

    /// Such as "PDF/A-2b"; empty where PDF/A is not claimed.
    [[nodiscard]] QString pdfAName() const;
    /// Such as "PDF/UA-1"; empty where PDF/UA is not claimed.
    [[nodiscard]] QString pdfUAName() const;
};

/// The XMP packet (ISO 16684-1) of the catalog of `document`; nothing where there is none, or where
/// it is damaged, longer than a few megabytes, compressed more than once, or would take for ever.
std::optional<QString> readXmpPacket(QPDF &document);

/// What a packet says beside what the document information says too.
struct XmpContents {
    Claims claims;
    /// More than claims and the account that programs keep of their own work: a copyright, a
    /// publisher, a catalogue number.
    bool saysMore = false;
};

/// The contents of a packet; nothing where it is not well formed.
std::optional<XmpContents> readXmpContents(const QString &packet);

/// What the metadata of `document` claims.
Claims claimsOf(QPDF &document);

} // namespace folioforge
