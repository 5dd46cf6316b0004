// SPDX-License-Identifier: Apache-2.0

#include "image/description/Description.h"

#include "files/SourceFile.h"
#include "image/Bytes.h"
#include "image/ImageFormat.h"
#include "image/XmpNames.h"
#include "image/XmpProperties.h"
#include "image/description/DescriptionBlocks.h"

#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// UTF-8 where it is that, else Latin-1, as old programs write.
QString decoded(QByteArrayView bytes) {
    const qsizetype end = bytes.indexOf('\0');
    bytes = bytes.first(end < 0 ? bytes.size() : end);
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder.decode(bytes);
    return decoder.hasError() ? QString::fromLatin1(bytes) : text;
}

/// dc:description of a packet: the first that says something.
QString descriptionInXmp(const QByteArray &packet) {
    QString found;
    if (const auto text = xmpText(packet)) {
        forEachXmpProperty(
            *text, [&](QStringView space, QStringView name, const QStringList &texts) {
                if (found.isEmpty() && space == kDc && name == "description"_L1) {
                    const auto said = std::ranges::find_if(
                        texts, [](const QString &each) { return !each.trimmed().isEmpty(); });
                    found = said == texts.end() ? QString() : *said;
                }
            });
    }
    return found;
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
    const SourceFile file = SourceFile::open(path, calls);
    DescriptionBlocks blocks;
    try {
        const FileView view = file.view();
        if (const auto describe = formatOf(view).describe) {
            describe(view, blocks);
        }
    } catch (const Error &) {
        // Of a damaged file what stands before the damage counts.
    }
    file.requireNoFailure();
    for (const QString &text :
         {descriptionInXmp(blocks.xmp.value_or(QByteArray())),
          captionInIptc(blocks.iptc.value_or(QByteArray())),
          decoded(blocks.exif.value_or(QByteArray())), blocks.text.value_or(QString())}) {
        if (QString description = tidied(text); !description.isEmpty()) {
            return description;
        }
    }
    return {};
}

} // namespace folioforge
