#include "pdf/DocumentInfo.h"

#include "pdf/PDFContext.h"

#include <qpdf/QPDF.hh>

#include <QDateTime>

#include <cstdlib>

namespace folioforge {

namespace {

/// "D:20240131120000+01'00'" (ISO 32000-1, 7.9.4).
QString pdfDate(const QDateTime &date) {
    const QString local = date.toString(QStringLiteral("'D:'yyyyMMddHHmmss"));
    const int offset = date.offsetFromUtc();
    if (offset == 0) {
        return local + u'Z';
    }
    constexpr int kSecondsPerMinute = 60;
    const int minutes = std::abs(offset) / kSecondsPerMinute;
    return QStringLiteral("%1%2%3'%4'")
        .arg(local, offset < 0 ? QStringLiteral("-") : QStringLiteral("+"))
        .arg(minutes / 60, 2, 10, QLatin1Char('0'))
        .arg(minutes % 60, 2, 10, QLatin1Char('0'));
}

} // namespace

QDateTime documentDate() {
    bool given = false;
    const qint64 seconds = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&given);
    return given ? QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC) : QDateTime::currentDateTime();
}

void writeDocumentInfo(QPDF &document, const DocumentInfo &info) {
    auto dictionary = QPDFObjectHandle::newDictionary();
    const auto put = [&](const char *key, const QString &text) {
        dictionary.replaceKey(key, QPDFObjectHandle::newUnicodeString(text.toStdString()));
    };
    put("/Title", info.title);
    put("/Author", info.author);
    put("/Subject", info.subject);
    put("/Keywords", info.keywords);
    put("/Creator", QStringLiteral("Vesprin-Folioforge"));
    put("/Producer", QStringLiteral("Folioforge " FOLIOFORGE_VERSION));
    put("/CreationDate", pdfDate(info.created.isValid() ? info.created : documentDate()));
    document.getTrailer().replaceKey("/Info", document.makeIndirectObject(dictionary));
}

} // namespace folioforge
