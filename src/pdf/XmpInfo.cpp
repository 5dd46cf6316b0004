// SPDX-License-Identifier: Apache-2.0

#include "pdf/XmpInfo.h"

#include "pdf/DocumentInfo.h"
#include "pdf/XmpNames.h"

#include <QStringList>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// The text of the property in which `reader` is, or of the items that it lists. Reads to its end.
QStringList textsOf(QXmlStreamReader &reader) {
    constexpr auto kXml = "http://www.w3.org/XML/1998/namespace"_L1;
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

void take(DocumentInfo &info, QStringView space, QStringView name, const QStringList &texts) {
    if (space == kDc && name == "title"_L1) {
        info.title = texts.first();
    } else if (space == kDc && name == "creator"_L1) {
        info.author = texts.join(u", ");
    } else if (space == kDc && name == "description"_L1) {
        info.subject = texts.first();
    } else if (space == kPdf && name == "Keywords"_L1) {
        info.keywords = texts.first();
    } else if (space == kXmp && name == "CreatorTool"_L1) {
        info.creator = texts.first();
    }
}

/// Reads the node in which `reader` is; simple properties may be attributes.
void takeNode(DocumentInfo &info, QXmlStreamReader &reader) {
    for (const QXmlStreamAttribute &attribute : reader.attributes()) {
        take(info, attribute.namespaceUri(), attribute.name(), {attribute.value().toString()});
    }
    while (reader.readNextStartElement()) {
        const QString space = reader.namespaceUri().toString();
        const QString name = reader.name().toString();
        take(info, space, name, textsOf(reader));
    }
}

} // namespace

DocumentInfo infoInXmp(const QString &packet) {
    DocumentInfo info;
    info.creator = QString();
    QXmlStreamReader reader(packet);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.namespaceUri() == kRdf && reader.name() == "RDF"_L1) {
            while (reader.readNextStartElement()) {
                takeNode(info, reader);
            }
        }
    }
    return info;
}

} // namespace folioforge
