// SPDX-License-Identifier: Apache-2.0

#include "pdf/DocumentInfo.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "pdf/XmpInfo.h"
#include "pdf/XmpPacket.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace folioforge {

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

std::optional<QDateTime> sourceDate() {
    if (!qEnvironmentVariableIsSet("SOURCE_DATE_EPOCH")) {
        return std::nullopt;
    }
    constexpr qint64 kLast = 253'402'300'799; // The end of 9999: a date has four digits for a year.
    const QString text = qEnvironmentVariable("SOURCE_DATE_EPOCH");
    const auto isDigit = [](QChar unit) { return unit >= u'0' && unit <= u'9'; };
    bool fits = false;
    const qint64 seconds = text.toLongLong(&fits);
    if (!fits || seconds > kLast || !std::ranges::all_of(text, isDigit)) {
        throw Error(
            Reasons::tr(
                "SOURCE_DATE_EPOCH is \"%1\", not the seconds from 1970 to a date before the "
                "year 10000")
                .arg(text));
    }
    return QDateTime::fromSecsSinceEpoch(seconds).toUTC();
}

void fixCreationDate(DocumentInfo &info) {
    if (!info.created.isValid()) {
        info.created = sourceDate().value_or(QDateTime::currentDateTime());
    }
}

void takeMissingInfo(DocumentInfo &info, QPDF &source) {
    auto given = source.getTrailer().getKey("/Info");
    const auto packet = readXmpPacket(source);
    const DocumentInfo metadata = infoInXmp(packet.value_or(QString()));
    const auto textOf = [&given](const char *key, const QString &otherwise) {
        auto value = given.isDictionary() ? given.getKey(key) : QPDFObjectHandle::newNull();
        const bool isGiven = value.isString() && !value.getStringValue().empty();
        return isGiven ? QString::fromStdString(value.getUTF8Value()) : otherwise;
    };
    const auto take = [&textOf](QString &field, const char *key, const QString &otherwise) {
        if (field.isNull()) {
            field = textOf(key, otherwise);
        }
    };
    take(info.title, "/Title", metadata.title);
    take(info.author, "/Author", metadata.author);
    take(info.subject, "/Subject", metadata.subject);
    take(info.keywords, "/Keywords", metadata.keywords);
    if (const QString creator = textOf("/Creator", metadata.creator); !creator.isEmpty()) {
        info.creator = creator;
    }
}

QString producerName() {
    return QStringLiteral("Folioforge " FOLIOFORGE_VERSION);
}

void showTitle(QPDF &document) {
    auto catalog = document.getRoot();
    auto preferences = catalog.getKey("/ViewerPreferences");
    if (!preferences.isDictionary()) {
        preferences = QPDFObjectHandle::newDictionary();
        catalog.replaceKey("/ViewerPreferences", preferences);
    }
    preferences.replaceKey("/DisplayDocTitle", QPDFObjectHandle::newBool(true));
}

void writeDocumentInfo(QPDF &document, const DocumentInfo &info) {
    auto dictionary = QPDFObjectHandle::newDictionary();
    const auto put = [&](const char *key, const QString &text) {
        if (info.isWritten(text)) {
            dictionary.replaceKey(key, QPDFObjectHandle::newUnicodeString(text.toStdString()));
        }
    };
    put("/Title", info.title);
    put("/Author", info.author);
    put("/Subject", info.subject);
    put("/Keywords", info.keywords);
    put("/Creator", info.creator);
    put("/Producer", producerName());
    put("/CreationDate", pdfDate(info.created));
    document.getTrailer().replaceKey("/Info", document.makeIndirectObject(dictionary));
}

} // namespace folioforge
