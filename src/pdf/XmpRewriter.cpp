// SPDX-License-Identifier: Apache-2.0

#include "pdf/XmpRewriter.h"

#include "image/XmpNames.h"
#include "pdf/DocumentInfo.h"
#include "pdf/XmpInfo.h"
#include "pdf/XmpPacket.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// Without what XML cannot hold.
QString xmlText(const QString &text) {
    QString result;
    std::ranges::copy_if(text, std::back_inserter(result), [](QChar unit) {
        return unit >= u' ' ? unit != QChar(0xFFFE) && unit != QChar(0xFFFF)
                            : unit == u'\t' || unit == u'\n' || unit == u'\r';
    });
    return result;
}

/// Copies a packet token by token, with the names as they are spelled.
class XmpRewriter {
  public:
    XmpRewriter(const QString &packet, const DocumentInfo &info, const Claims &claims)
        : m_reader(packet)
        , m_writer(&m_result)
        , m_info(info)
        , m_claims(claims) {
        const Claims own = readXmpContents(packet).value_or(XmpContents()).claims;
        m_keepsPdfA = !claims.pdfA.isEmpty() && claims.pdfAName() == own.pdfAName();
        m_keepsPdfUA = !claims.pdfUA.isEmpty() && claims.pdfUA == own.pdfUA;
    }

    QByteArray run() {
        m_writer.writeProcessingInstruction(u"xpacket"_s,
                                            u"begin=\"\uFEFF\" id=\"W5M0MpCehiHzreSzNTczkc9d\""_s);
        m_writer.writeCharacters(u"\n"_s);
        while (!m_reader.atEnd()) {
            m_reader.readNext();
            copyToken();
        }
        m_writer.writeCharacters(u"\n"_s);
        m_writer.writeProcessingInstruction(u"xpacket"_s, u"end=\"w\""_s);
        return m_result;
    }

  private:
    void copyToken() {
        switch (m_reader.tokenType()) {
        case QXmlStreamReader::StartElement:
            beginElement();
            break;
        case QXmlStreamReader::EndElement:
            if (m_depth == m_rdfDepth) {
                writeInfo();
                writeClaims();
                m_rdfDepth = 0;
            }
            m_writer.writeEndElement();
            --m_depth;
            break;
        case QXmlStreamReader::Characters:
            if (m_depth > 0) {
                m_writer.writeCharacters(m_reader.text().toString());
            }
            break;
        default:
            break; // Beside the elements there are only comments and the packet's own marks.
        }
    }

    void beginElement() {
        const bool isProperty = m_rdfDepth > 0 && m_depth == m_rdfDepth + 1;
        if (isReplaced(m_reader.namespaceUri(), m_reader.name(), isProperty)) {
            m_reader.skipCurrentElement();
            return;
        }
        ++m_depth;
        if (m_rdfDepth == 0 && m_reader.namespaceUri() == kRdf && m_reader.name() == "RDF"_L1) {
            m_rdfDepth = m_depth;
        }
        m_writer.writeStartElement(m_reader.qualifiedName().toString());
        for (const auto &declaration : m_reader.namespaceDeclarations()) {
            const QString prefix = declaration.prefix().toString();
            m_writer.writeAttribute(prefix.isEmpty() ? u"xmlns"_s : u"xmlns:"_s + prefix,
                                    declaration.namespaceUri().toString());
        }
        copyAttributes(m_rdfDepth > 0 && m_depth == m_rdfDepth + 1);
    }

    /// Simple properties may be attributes of the node that has them.
    void copyAttributes(bool ofNode) {
        for (const QXmlStreamAttribute &attribute : m_reader.attributes()) {
            if (ofNode && attribute.namespaceUri() == kRdf && attribute.name() == "about"_L1) {
                m_about = attribute.value().toString();
            }
            if (!isReplaced(attribute.namespaceUri(), attribute.name(), ofNode)) {
                m_writer.writeAttribute(attribute.qualifiedName().toString(),
                                        attribute.value().toString());
            }
        }
    }

    /// A claim goes wherever it stands, since it is read so, too.
    [[nodiscard]] bool isReplaced(QStringView space, QStringView name, bool ofNode) const {
        return (ofNode && isOfInfo(space, name)) || (space == kPdfA && !m_keepsPdfA) ||
               (space == kPdfUA && !m_keepsPdfUA);
    }

    /// A node with what the document information says.
    void writeInfo() {
        beginNode({{u"dc"_s, kDc}, {u"pdf"_s, kPdf}, {u"xmp"_s, kXmp}});
        writeList(u"dc:title"_s, u"rdf:Alt"_s, m_info.title);
        writeList(u"dc:creator"_s, u"rdf:Seq"_s, m_info.author);
        writeList(u"dc:description"_s, u"rdf:Alt"_s, m_info.subject);
        if (m_info.isWritten(m_info.keywords)) {
            m_writer.writeTextElement(u"pdf:Keywords"_s, xmlText(m_info.keywords));
        }
        m_writer.writeTextElement(u"pdf:Producer"_s, producerName());
        m_writer.writeTextElement(u"xmp:CreatorTool"_s, xmlText(m_info.creator));
        const QDateTime &created = m_info.created;
        const QString date = created.toOffsetFromUtc(created.offsetFromUtc()).toString(Qt::ISODate);
        m_writer.writeTextElement(u"xmp:CreateDate"_s, date);
        m_writer.writeTextElement(u"xmp:MetadataDate"_s, date);
        m_writer.writeEndElement();
    }

    /// Nodes with the claims that the packet did not make.
    void writeClaims() {
        if (!m_claims.pdfA.isEmpty() && !m_keepsPdfA) {
            beginNode({{u"pdfaid"_s, kPdfA}});
            m_writer.writeTextElement(u"pdfaid:part"_s, m_claims.pdfA);
            m_writer.writeTextElement(u"pdfaid:conformance"_s, m_claims.conformance);
            m_writer.writeEndElement();
        }
        if (!m_claims.pdfUA.isEmpty() && !m_keepsPdfUA) {
            beginNode({{u"pdfuaid"_s, kPdfUA}});
            m_writer.writeTextElement(u"pdfuaid:part"_s, m_claims.pdfUA);
            m_writer.writeEndElement();
            if (!m_claims.pdfA.isEmpty()) {
                describePdfUA();
            }
        }
    }

    /// Of PDF/UA's own property PDF/A knows nothing but what stands here (ISO 19005-2, 6.6.2.3.3).
    void describePdfUA() {
        beginNode({{u"pdfaExtension"_s, u"http://www.aiim.org/pdfa/ns/extension/"_s},
                   {u"pdfaSchema"_s, u"http://www.aiim.org/pdfa/ns/schema#"_s},
                   {u"pdfaProperty"_s, u"http://www.aiim.org/pdfa/ns/property#"_s}});
        for (const auto &name : {u"pdfaExtension:schemas"_s, u"rdf:Bag"_s}) {
            m_writer.writeStartElement(name);
        }
        beginResource(u"rdf:li"_s);
        m_writer.writeTextElement(u"pdfaSchema:schema"_s,
                                  u"PDF/UA Universal Accessibility Schema"_s);
        m_writer.writeTextElement(u"pdfaSchema:namespaceURI"_s, kPdfUA);
        m_writer.writeTextElement(u"pdfaSchema:prefix"_s, u"pdfuaid"_s);
        for (const auto &name : {u"pdfaSchema:property"_s, u"rdf:Seq"_s}) {
            m_writer.writeStartElement(name);
        }
        beginResource(u"rdf:li"_s);
        m_writer.writeTextElement(u"pdfaProperty:name"_s, u"part"_s);
        m_writer.writeTextElement(u"pdfaProperty:valueType"_s, u"Integer"_s);
        m_writer.writeTextElement(u"pdfaProperty:category"_s, u"internal"_s);
        m_writer.writeTextElement(u"pdfaProperty:description"_s,
                                  u"Part of ISO 14289 to which the document conforms"_s);
        constexpr int kOpen = 7; // From the node to the property.
        for (int level = 0; level < kOpen; ++level) {
            m_writer.writeEndElement();
        }
    }

    void beginResource(const QString &name) {
        m_writer.writeStartElement(name);
        m_writer.writeAttribute(u"rdf:parseType"_s, u"Resource"_s);
    }

    /// A node of the document with names of these namespaces.
    void beginNode(std::initializer_list<std::pair<QString, QString>> prefixes) {
        m_writer.writeStartElement(u"rdf:Description"_s);
        m_writer.writeAttribute(u"xmlns:rdf"_s, kRdf);
        for (const auto &[prefix, space] : prefixes) {
            m_writer.writeAttribute(u"xmlns:"_s + prefix, space);
        }
        m_writer.writeAttribute(u"rdf:about"_s, m_about);
    }

    /// A property of one item; a choice of languages has the one for all of them.
    void writeList(const QString &name, const QString &kind, const QString &text) {
        if (!m_info.isWritten(text)) {
            return;
        }
        m_writer.writeStartElement(name);
        m_writer.writeStartElement(kind);
        m_writer.writeStartElement(u"rdf:li"_s);
        if (kind == u"rdf:Alt") {
            m_writer.writeAttribute(u"xml:lang"_s, u"x-default"_s);
        }
        m_writer.writeCharacters(xmlText(text));
        for (int level = 0; level < 3; ++level) {
            m_writer.writeEndElement();
        }
    }

    QXmlStreamReader m_reader;
    QByteArray m_result;
    QXmlStreamWriter m_writer;
    const DocumentInfo &m_info;
    const Claims &m_claims;
    bool m_keepsPdfA = false; ///< The packet's own claim stays as it is; so with the next.
    bool m_keepsPdfUA = false;
    QString m_about;
    int m_depth = 0;
    int m_rdfDepth = 0; ///< Of the element rdf:RDF while inside it, else 0.
};

} // namespace

QByteArray rewrittenXmp(const QString &packet, const DocumentInfo &info, const Claims &claims) {
    return XmpRewriter(packet, info, claims).run();
}

QString emptyXmp() {
    return u"<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF xmlns:rdf=\"%1\"></rdf:RDF></x:xmpmeta>"_s
        .arg(kRdf);
}

} // namespace folioforge
