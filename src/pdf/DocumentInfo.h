// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDateTime>
#include <QString>

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

/// Writes the document information into `document`.
void writeDocumentInfo(QPDF &document, const DocumentInfo &info);

} // namespace folioforge
