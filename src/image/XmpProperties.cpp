// SPDX-License-Identifier: Apache-2.0

#include "image/XmpProperties.h"

#include "image/XmpNames.h"

#include <QStringDecoder>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// What the time to read a packet grows with.
struct PacketCounts {
    int names = 0;         ///< Of elements and attributes, all in all.
    int maxAttributes = 0; ///< Of one element.
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
            counts.maxAttributes = std::max(counts.maxAttributes, ++attributes);
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
    return counts.maxAttributes <= kMaxAttributes &&
           counts.names * packet.count("xmlns"_L1) <= kMaxSteps && !packet.contains("<!DOCTYPE"_L1);
}

/// The text of the property in which `reader` is, or of the items that it lists. Reads to its end.
QStringList textsOf(QXmlStreamReader &reader) {
    QString text;
    QStringList listed;
    for (int depth = 1; depth > 0 && !reader.atEnd();) {
        reader.readNext();
        if (reader.isCharacters()) {
            text += reader.text();
        } else if (reader.isEndElement()) {
            --depth;
        } else if (reader.isStartElement() && reader.name() != "li"_L1) {
            ++depth;
        } else if (reader.isStartElement()) {
            const bool first = reader.attributes().value(kXml, "lang"_L1) == "x-default"_L1;
            listed.insert(first ? 0 : listed.size(),
                          reader.readElementText(QXmlStreamReader::SkipChildElements));
        }
    }
    return listed.isEmpty() ? QStringList(text.trimmed()) : listed;
}

/// Reads the node in which `reader` is; simple properties may be attributes.
void visitNode(QXmlStreamReader &reader, const XmpVisitor &visit) {
    for (const QXmlStreamAttribute &attribute : reader.attributes()) {
        visit(attribute.namespaceUri(), attribute.name(), {attribute.value().toString()});
    }
    while (reader.readNextStartElement()) {
        const QString space = reader.namespaceUri().toString();
        const QString name = reader.name().toString();
        visit(space, name, textsOf(reader));
    }
}

} // namespace

std::optional<QString> xmpText(const QByteArray &packet) {
    const auto encoding = QStringConverter::encodingForData(packet, u'<');
    QStringDecoder decoder(encoding.value_or(QStringConverter::Utf8));
    QString text = decoder.decode(packet);
    while (text.endsWith(QChar(0))) { // Some writers pad with zeros.
        text.chop(1);
    }
    return decoder.hasError() || !isQuick(text) ? std::nullopt : std::optional(text);
}

void forEachXmpProperty(const QString &packet, const XmpVisitor &visit) {
    QXmlStreamReader reader(packet);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.namespaceUri() == kRdf && reader.name() == "RDF"_L1) {
            while (reader.readNextStartElement()) {
                visitNode(reader, visit);
            }
        }
    }
}

} // namespace folioforge
