// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

class QPDF;

namespace folioforge {

/// Document information. Every field is written, empty or not, unless only those are that say
/// something; one that nobody gave is null.
struct DocumentInfo {
    QString title;
    QString author;
    QString subject;
    QString keywords;
    QString creator = QStringLiteral("Vesprin-Folioforge");
    QDateTime created; ///< The creation date; where it is invalid, SOURCE_DATE_EPOCH (seconds
                       ///< since 1970, UTC), else now.
    bool leavesOutEmpty = false;

    /// Whether a field with this text is written.
    [[nodiscard]] bool isWritten(const QString &text) const {
        return !leavesOutEmpty || !text.isEmpty();
    }
};

/// SOURCE_DATE_EPOCH of the environment, so that a document can be made again byte for byte;
/// nothing where it is not set. Throws Error where it is no date.
std::optional<QDateTime> sourceDate();

/// Gives `info` the creation date that is written where its own is invalid. Throws Error as
/// sourceDate() does.
void fixCreationDate(DocumentInfo &info);

/// Fills the fields of `info` that are null, and the creator, with what the information of `source`
/// says of them, or else its metadata.
void takeMissingInfo(DocumentInfo &info, QPDF &source);

/// A date as PDF writes it, such as "D:20240131120000+01'00'" (ISO 32000-1, 7.9.4).
QString pdfDate(const QDateTime &date);

/// The producer that is written.
QString producerName();

/// Makes readers show the title of `document`, whose catalog is written, in place of its file's
/// name.
void showTitle(QPDF &document);

/// Writes the document information, with its creation date valid, into `document`.
void writeDocumentInfo(QPDF &document, const DocumentInfo &info);

} // namespace folioforge
