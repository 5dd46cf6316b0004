#pragma once

class QPDF;
class QString;
class QDateTime;

namespace folioforge {

struct DocumentInfo;

/// Writes the document information: title, author, subject and keywords, empty or not, creator,
/// producer and `created`, or documentDate() where that is invalid.
void writeDocumentInfo(QPDF &document, const DocumentInfo &info);

/// The date that new documents carry: SOURCE_DATE_EPOCH (seconds since 1970, UTC) where the
/// environment has it, so that a document can be made again byte for byte; else now.
QDateTime documentDate();

} // namespace folioforge
