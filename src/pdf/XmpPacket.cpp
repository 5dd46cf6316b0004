// SPDX-License-Identifier: Apache-2.0

#include "pdf/XmpPacket.h"

#include "pdf/BoundedBuffer.h"
#include "pdf/XmpNames.h"

#include <qpdf/QPDF.hh>

#include <QStringDecoder>
#include <QXmlStreamReader>

#include <algorithm>
#include <string>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

void readClaim(Claims &claims, QStringView space, QStringView name, const QString &value) {
    const QString text = value.trimmed();
    if (space == kPdfA && name == "part"_L1) {
        claims.pdfA = text;
    } else if (space == kPdfA && name == "conformance"_L1) {
        claims.conformance = text;
    } else if (space == kPdfUA && name == "part"_L1) {
        claims.pdfUA = text;
    }
}

/// A packet as text; nothing where it is in no encoding that XMP has.
std::optional<QString> decoded(const QByteArray &packet) {
    const auto encoding = QStringConverter::encodingForData(packet, u'<');
    QStringDecoder decoder(encoding.value_or(QStringConverter::Utf8));
    QString text = decoder.decode(packet);
    while (text.endsWith(QChar(0))) { // Some writers pad with zeros.
        text.chop(1);
    }
    return decoder.hasError() ? std::nullopt : std::optional(text);
}

/// What the time to read a packet grows with.
struct PacketCounts {
    int names = 0;          ///< Of elements and attributes, all in all.
    int mostAttributes = 0; ///< Of one element.
};

PacketCounts countNames(QStringView packet) {
    PacketCounts counts;
    bool inTag = false;
    QChar quote; // That of the value; null outside values.
    int attributes = 0;
    for (const QChar unit : packet) {
        if (unit == u'<') { // No value and no text has one, so that what follows is a tag.
            inTag = true;
            quote = {};
            attributes = 0;
            ++counts.names;
        } else if (!inTag || !quote.isNull()) {
            quote = unit == quote ? QChar() : quote;
        } else if (unit == u'"' || unit == u'\'') {
            quote = unit;
        } else if (unit == u'!' || unit == u'?' || unit == u'>') { // A remark or the tag's end.
            inTag = false;
        } else if (unit == u'=') {
            ++counts.names;
            counts.mostAttributes = std::max(counts.mostAttributes, ++attributes);
        }
    }
    return counts;
}

/// Whether a packet is read in a moment. The reader compares each attribute of an element with all
/// others, those that a document type gives it among them, and looks for each name among all
/// prefixes that are declared around it.
bool isQuick(const QString &packet) {
    constexpr int kMaxAttributes = 1000;
    constexpr qsizetype kMaxSteps = 100'000'000;
    const PacketCounts counts = countNames(packet);
    return counts.mostAttributes <= kMaxAttributes &&
           counts.names * packet.count("xmlns"_L1) <= kMaxSteps && !packet.contains("<!DOCTYPE"_L1);
}

} // namespace

QString Claims::pdfAName() const {
    return pdfA.isEmpty() ? QString() : u"PDF/A-"_s + pdfA + conformance.toLower();
}

QString Claims::pdfUAName() const {
    return pdfUA.isEmpty() ? QString() : u"PDF/UA-"_s + pdfUA;
}

std::optional<QString> readXmpPacket(QPDF &document) {
    constexpr std::size_t kMaxBytes = 4 << 20;
    auto metadata = document.getRoot().getKey("/Metadata");
    const auto packet = metadata.isStream() ? boundedData(metadata, kMaxBytes) : std::nullopt;
    if (!packet) {
        return std::nullopt;
    }
    const auto text = decoded(QByteArray::fromStdString(*packet));
    return text && isQuick(*text) ? text : std::nullopt;
}

std::optional<Claims> readClaims(const QString &packet) {
    Claims claims;
    bool hasRdf = false;
    bool isWhole = true;
    QXmlStreamReader reader(packet);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            isWhole &= reader.tokenType() != QXmlStreamReader::EntityReference;
            continue;
        }
        hasRdf |= reader.namespaceUri() == kRdf && reader.name() == "RDF"_L1;
        for (const QXmlStreamAttribute &attribute : reader.attributes()) {
            readClaim(claims, attribute.namespaceUri(), attribute.name(),
                      attribute.value().toString());
        }
        if (reader.namespaceUri() == kPdfA || reader.namespaceUri() == kPdfUA) {
            const QString space = reader.namespaceUri().toString();
            const QString name = reader.name().toString();
            readClaim(claims, space, name,
                      reader.readElementText(QXmlStreamReader::SkipChildElements));
        }
    }
    return reader.hasError() || !hasRdf || !isWhole ? std::nullopt : std::optional(claims);
}

Claims claimsOf(QPDF &document) {
    const auto packet = readXmpPacket(document);
    return packet ? readClaims(*packet).value_or(Claims()) : Claims();
}

} // namespace folioforge
