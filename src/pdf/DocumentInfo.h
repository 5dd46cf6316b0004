// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

class QPDF;

namespace folioforge {

/// Document information. Every field is written, empty or not; the creator is always
/// "Vesprin-Folioforge".
struct DocumentInfo {
    QString title;
    QString author;
    QString subject;
    QString keywords;
    QDateTime created; ///< The creation date; where it is invalid, SOURCE_DATE_EPOCH (seconds
                       ///< since 1970, UTC), else now.
};

/// SOURCE_DATE_EPOCH of the environment, so that a document can be made again byte for byte;
/// nothing where it is not set. Throws Error where it is no date.
std::optional<QDateTime> sourceDate();

/// Writes the document information into `document`. Throws Error as sourceDate() does.
void writeDocumentInfo(QPDF &document, const DocumentInfo &info);

} // namespace folioforge
