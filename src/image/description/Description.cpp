// SPDX-License-Identifier: Apache-2.0

#include "image/description/Description.h"

#include "files/SourceFile.h"
#include "image/Bytes.h"
#include "image/description/DescriptionBlocks.h"

#include <QStringDecoder>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

constexpr auto kRdf = "http://www.w3.org/1999/02/22-rdf-syntax-ns#"_L1;
constexpr auto kDc = "http://purl.org/dc/elements/1.1/"_L1;

/// UTF-8 where it is that, else Latin-1, as old programs write.
QString decoded(QByteArrayView bytes) {
    const qsizetype end = bytes.indexOf('\0');
    bytes = bytes.first(end < 0 ? bytes.size() : end);
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder.decode(bytes);
    return decoder.hasError() ? QString::fromLatin1(bytes) : text;
}

/// The items of the choice of languages that `reader` stands on: that for all of them, or the
/// first.
QString choiceIn(QXmlStreamReader &reader) {
    QString choice;
    bool isDefault = false;
    for (int depth = 1; depth > 0 && !reader.atEnd();) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (reader.namespaceUri() == kRdf && reader.name() == "li"_L1) {
                const bool forAll = reader.attributes().value("xml:lang"_L1) == "x-default"_L1;
                const QString text = reader.readElementText(QXmlStreamReader::IncludeChildElements);
                if (choice.isEmpty() || (forAll && !isDefault)) {
                    choice = text;
                    isDefault = forAll;
                }
            } else {
                ++depth;
            }
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        default:
            break;
        }
    }
    return choice;
}

/// dc:description of a packet.
QString descriptionInXmp(const QByteArray &packet) {
    if (packet.contains("<!DOCTYPE")) {
        return {}; // No packet has one, and it may make the reader write for ever.
    }
    QXmlStreamReader reader(packet);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.namespaceUri() == kDc &&
            reader.name() == "description"_L1) {
            return choiceIn(reader);
        }
    }
    return {};
}

/// The data set 2:120.
QString captionInIptc(QByteArrayView sets) {
    constexpr char kMark = 0x1C;
    constexpr qsizetype kLead = 5;
    for (qsizetype at = 0; at + kLead <= sets.size() && sets[at] == kMark;) {
        const qsizetype length = bigEndianAt<quint16>(sets, at + 3);
        if (length > sets.size() - at - kLead) {
            break; // Damaged, or longer than any caption may be.
        }
        if (sets[at + 1] == 2 && sets[at + 2] == 120) {
            return decoded(sets.sliced(at + kLead, length));
        }
        at += kLead + length;
    }
    return {};
}

/// Without blanks around it, and no longer than a string of PDF/A may be.
QString tidied(const QString &text) {
    constexpr qsizetype kMax = 8000;
    const QString trimmed = text.trimmed();
    return trimmed.size() > kMax ? trimmed.first(kMax) + u'…' : trimmed;
}

} // namespace

QString ownDescription(const QString &path, SystemCalls &calls) {
    DescriptionBlocks blocks;
    try {
        const SourceFile file = SourceFile::open(path, calls);
        blocks = readDescriptionBlocks(file.view());
    } catch (const Error &) {
        return {};
    }
    for (const QString &text : {descriptionInXmp(blocks.xmp), captionInIptc(blocks.iptc),
                                decoded(blocks.exif), blocks.text}) {
        if (const QString description = tidied(text); !description.isEmpty()) {
            return description;
        }
    }
    return {};
}

} // namespace folioforge
