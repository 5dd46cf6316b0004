// SPDX-License-Identifier: Apache-2.0

#include "pdf/XmpPacket.h"

#include "image/XmpNames.h"
#include "image/XmpProperties.h"
#include "pdf/BoundedBuffer.h"
#include "pdf/XmpInfo.h"

#include <qpdf/QPDF.hh>

#include <QXmlStreamReader>

#include <algorithm>
#include <array>
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

/// Whether a property is a claim or belongs to the account that programs keep of their own work.
bool isOfPrograms(QStringView space, QStringView name) {
    static constexpr std::array<QLatin1StringView, 6> kSpaces{
        "http://www.aiim.org/pdfa/ns/"_L1,      kPdfUA,
        "http://ns.adobe.com/xap/1.0/mm/"_L1,   "http://ns.adobe.com/xap/1.0/g/"_L1,
        "http://ns.adobe.com/xap/1.0/t/pg/"_L1, "http://ns.adobe.com/illustrator/"_L1};
    return std::ranges::any_of(kSpaces, [&](auto known) { return space.startsWith(known); }) ||
           (space == kDc && name == "format"_L1) || (space == kPdf && name == "PDFVersion"_L1);
}

/// Reads a packet once for all that is asked of it.
class ContentsReader {
  public:
    explicit ContentsReader(const QString &packet)
        : m_reader(packet) {}

    std::optional<XmpContents> read() {
        while (!m_reader.atEnd()) {
            switch (m_reader.readNext()) {
            case QXmlStreamReader::StartElement:
                beginElement();
                break;
            case QXmlStreamReader::EndElement:
                endElement();
                break;
            case QXmlStreamReader::Characters:
                m_contents.saysMore |= m_ownDepth > 0 && !m_reader.isWhitespace();
                break;
            default:
                break;
            }
        }
        return m_reader.hasError() || !m_hasRdf ? std::nullopt : std::optional(m_contents);
    }

  private:
    void beginElement() {
        const auto space = m_reader.namespaceUri();
        const auto name = m_reader.name();
        ++m_depth;
        if (m_rdfDepth == 0 && space == kRdf && name == "RDF"_L1) {
            m_hasRdf = true;
            m_rdfDepth = m_depth;
        } else if (m_ownDepth == 0 && m_rdfDepth > 0 && m_depth == m_rdfDepth + 2 &&
                   isOwn(space, name)) {
            m_ownDepth = m_depth;
        }
        const bool ofNode = m_rdfDepth > 0 && m_depth == m_rdfDepth + 1;
        for (const QXmlStreamAttribute &attribute : m_reader.attributes()) {
            readClaim(m_contents.claims, attribute.namespaceUri(), attribute.name(),
                      attribute.value().toString());
            m_contents.saysMore |= (ofNode || m_ownDepth > 0) && saysMore(attribute);
        }
        if (space == kPdfA || space == kPdfUA) {
            const QString claimed = space.toString();
            const QString property = name.toString();
            readClaim(m_contents.claims, claimed, property,
                      m_reader.readElementText(QXmlStreamReader::SkipChildElements));
            endElement(); // Which was read, too.
        }
    }

    void endElement() {
        m_rdfDepth = m_depth == m_rdfDepth ? 0 : m_rdfDepth;
        m_ownDepth = m_depth == m_ownDepth ? 0 : m_ownDepth;
        --m_depth;
    }

    static bool isOwn(QStringView space, QStringView name) {
        return !isOfInfo(space, name) && !isOfPrograms(space, name);
    }

    static bool saysMore(const QXmlStreamAttribute &attribute) {
        const auto space = attribute.namespaceUri();
        const bool ofSyntax = space.isEmpty() || space == kXml ||
                              (space == kRdf && attribute.name() != "resource"_L1);
        return !ofSyntax && isOwn(space, attribute.name()) &&
               !attribute.value().trimmed().isEmpty();
    }

    QXmlStreamReader m_reader;
    XmpContents m_contents;
    bool m_hasRdf = false;
    int m_depth = 0;
    int m_rdfDepth = 0; ///< Of the element rdf:RDF while inside it, else 0.
    int m_ownDepth = 0; ///< Of a property that no other place tells, while inside it, else 0.
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
    return xmpText(QByteArray::fromStdString(*packet));
}

std::optional<XmpContents> readXmpContents(const QString &packet) {
    return ContentsReader(packet).read();
}

Claims claimsOf(QPDF &document) {
    const auto packet = readXmpPacket(document);
    const auto contents = packet ? readXmpContents(*packet) : std::nullopt;
    return contents ? contents->claims : Claims();
}

} // namespace folioforge
