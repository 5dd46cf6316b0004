// SPDX-License-Identifier: Apache-2.0

#include "pdf/DocumentInfo.h"

#include <qpdf/QPDF.hh>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// "D:20240131120000+01'00'" (ISO 32000-1, 7.9.4).
QString pdfDate(const QDateTime &date) {
    const QString local = date.toString(u"'D:'yyyyMMddHHmmss"_s);
    const int offset = date.offsetFromUtc();
    if (offset == 0) {
        return local + u'Z';
    }
    constexpr int kSecondsPerMinute = 60;
    const int minutes = std::abs(offset) / kSecondsPerMinute;
    return u"%1%2%3'%4'"_s.arg(local, offset < 0 ? u"-"_s : u"+"_s)
        .arg(minutes / 60, 2, 10, QLatin1Char('0'))
        .arg(minutes % 60, 2, 10, QLatin1Char('0'));
}

/// SOURCE_DATE_EPOCH where the environment has it, so that a document can be made again byte for
/// byte; else now.
QDateTime documentDate() {
    bool given = false;
    const qint64 seconds = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&given);
    return given ? QDateTime::fromSecsSinceEpoch(seconds).toUTC() : QDateTime::currentDateTime();
}

} // namespace

void writeDocumentInfo(QPDF &document, const DocumentInfo &info) {
    auto dictionary = QPDFObjectHandle::newDictionary();
    const auto put = [&](const char *key, const QString &text) {
        dictionary.replaceKey(key, QPDFObjectHandle::newUnicodeString(text.toStdString()));
    };
    put("/Title", info.title);
    put("/Author", info.author);
    put("/Subject", info.subject);
    put("/Keywords", info.keywords);
    put("/Creator", u"Vesprin-Folioforge"_s);
    put("/Producer", QStringLiteral("Folioforge " FOLIOFORGE_VERSION));
    put("/CreationDate", pdfDate(info.created.isValid() ? info.created : documentDate()));
    document.getTrailer().replaceKey("/Info", document.makeIndirectObject(dictionary));
}

} // namespace folioforge
