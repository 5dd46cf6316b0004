// SPDX-License-Identifier: Apache-2.0

#include "pdf/XmpPacket.h"

#include "pdf/BoundedBuffer.h"
#include "pdf/DocumentInfo.h"
#include "pdf/XmpNames.h"

#include <qpdf/QPDF.hh>

#include <QStringDecoder>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

constexpr auto kPdfA = "http://www.aiim.org/pdfa/ns/id/"_L1;
constexpr auto kPdfUA = "http://www.aiim.org/pdfua/ns/id/"_L1;

/// Whether the document information says it too.
bool isOfInfo(QStringView space, QStringView name) {
    static constexpr std::array<std::pair<QLatin1StringView, QLatin1StringView>, 10> kProperties{
        {{kDc, "title"_L1},
         {kDc, "creator"_L1},
         {kDc, "description"_L1},
         {kDc, "subject"_L1},
         {kPdf, "Keywords"_L1},
         {kPdf, "Producer"_L1},
         {kXmp, "CreatorTool"_L1},
         {kXmp, "CreateDate"_L1},
         {kXmp, "ModifyDate"_L1},
         {kXmp, "MetadataDate"_L1}}};
    return std::ranges::any_of(kProperties, [&](const auto &property) {
        return space == property.first && name == property.second;
    });
}

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

/// Without what XML cannot hold.
QString xmlText(const QString &text) {
    QString result;
    std::ranges::copy_if(text, std::back_inserter(result), [](QChar unit) {
        return unit >= u' ' ? unit != QChar(0xFFFE) && unit != QChar(0xFFFF)
                            : unit == u'\t' || unit == u'\n' || unit == u'\r';
    });
    return result;
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

/// Copies a packet token by token, with the names as they are spelled.
class XmpRewriter {
  public:
    XmpRewriter(const QString &packet, const DocumentInfo &info, const Claims &kept)
        : m_reader(packet)
        , m_writer(&m_result)
        , m_info(info)
        , m_kept(kept) {}

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
        return (ofNode && isOfInfo(space, name)) || (space == kPdfA && m_kept.pdfA.isEmpty()) ||
               (space == kPdfUA && m_kept.pdfUA.isEmpty());
    }

    /// A node with what the document information says.
    void writeInfo() {
        m_writer.writeStartElement(u"rdf:Description"_s);
        for (const auto &[prefix, space] : {std::pair{u"rdf"_s, kRdf}, std::pair{u"dc"_s, kDc},
                                            std::pair{u"pdf"_s, kPdf}, std::pair{u"xmp"_s, kXmp}}) {
            m_writer.writeAttribute(u"xmlns:"_s + prefix, space);
        }
        m_writer.writeAttribute(u"rdf:about"_s, m_about);
        writeList(u"dc:title"_s, u"rdf:Alt"_s, m_info.title);
        writeList(u"dc:creator"_s, u"rdf:Seq"_s, m_info.author);
        writeList(u"dc:description"_s, u"rdf:Alt"_s, m_info.subject);
        m_writer.writeTextElement(u"pdf:Keywords"_s, xmlText(m_info.keywords));
        m_writer.writeTextElement(u"pdf:Producer"_s, producerName());
        m_writer.writeTextElement(u"xmp:CreatorTool"_s, xmlText(m_info.creator));
        const QDateTime &created = m_info.created;
        const QString date = created.toOffsetFromUtc(created.offsetFromUtc()).toString(Qt::ISODate);
        m_writer.writeTextElement(u"xmp:CreateDate"_s, date);
        m_writer.writeTextElement(u"xmp:MetadataDate"_s, date);
        m_writer.writeEndElement();
    }

    /// A property of one item; a choice of languages has the one for all of them.
    void writeList(const QString &name, const QString &kind, const QString &text) {
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
    const Claims &m_kept;
    QString m_about;
    int m_depth = 0;
    int m_rdfDepth = 0; ///< Of the element rdf:RDF while inside it, else 0.
};

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

QByteArray rewrittenXmp(const QString &packet, const DocumentInfo &info, const Claims &kept) {
    return XmpRewriter(packet, info, kept).run();
}

} // namespace folioforge
