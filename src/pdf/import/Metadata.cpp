// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/Metadata.h"

#include "error/Reasons.h"
#include "pdf/DocumentInfo.h"
#include "pdf/XmpRewriter.h"

#include <qpdf/QPDF.hh>

#include <algorithm>

namespace folioforge {

namespace {

bool isDamaged(const Warnings &warnings) {
    return std::ranges::any_of(warnings, [](const Warning &warning) {
        return warning.code == WarningCode::PdfRepaired ||
               warning.code == WarningCode::PdfPagesLost;
    });
}

/// Why the copy does not keep what only a sound and whole document keeps; empty where it does.
QString reasonOfBoth(const ImportOptions &options, const Warnings &warnings) {
    if (options.scope == ImportScope::OneOfSeveral) {
        return Reasons::tr("it is a part of another one now");
    }
    return isDamaged(warnings) ? Reasons::tr("it was damaged") : QString();
}

/// Why the copy does not keep the standard for archives that is asked for; empty where it does.
QString reasonOfArchive(const Claims &claims, const ImportOptions &options,
                        const DocumentParts &parts, const Warnings &warnings) {
    const QString reason =
        reasonAgainst(claims, *options.archive, parts.carried.contains(PartKind::Attachments));
    return reason.isEmpty() && isDamaged(warnings) ? Reasons::tr("it was damaged") : reason;
}

QString reasonOfStructure(const PartCounts &left) {
    return left.contains(PartKind::StructureElements)
               ? Reasons::tr("some of its structure tags are damaged")
               : QString();
}

QString reasonAgainstPdfA(const Claims &claims, const ImportOptions &options,
                          const PartCounts &left) {
    if (options.encrypted) {
        return Reasons::tr("that forbids encryption");
    }
    if (claims.pdfA == u"4") {
        return Reasons::tr("that forbids the document information, which is written");
    }
    return claims.conformance == u"A" ? reasonOfStructure(left) : QString();
}

QString reasonAgainstPdfUA(const ImportOptions &options, const PartCounts &left) {
    if (options.info.title.isEmpty()) {
        return Reasons::tr("that demands a title, and none is given");
    }
    return reasonOfStructure(left);
}

void drop(const QString &standard, const QString &reason, Warnings &warnings) {
    warnings.push_back(
        {WarningCode::ClaimDropped,
         Reasons::tr("The document no longer says that it is %1, since %2").arg(standard, reason)});
}

} // namespace

ImportedMetadata readMetadata(QPDF &source, ImportScope scope) {
    ImportedMetadata metadata;
    if (!source.getRoot().getKey("/Metadata").isStream()) {
        return metadata;
    }
    const auto packet = readXmpPacket(source);
    const auto contents = packet ? readXmpContents(*packet) : std::nullopt;
    if (!contents) {
        metadata.isLeft = true;
        return metadata;
    }
    metadata.claims = contents->claims;
    if (scope == ImportScope::WholeDocument) {
        metadata.packet = *packet;
    } else {
        metadata.isLeft = contents->saysMore;
    }
    return metadata;
}

Warnings dropBrokenClaims(ImportedMetadata &metadata, const ImportOptions &options,
                          const DocumentParts &parts, const Warnings &warnings) {
    Warnings dropped;
    Claims &claims = metadata.claims;
    const QString both = reasonOfBoth(options, warnings);
    if (options.archive) {
        metadata.notForArchive = reasonOfArchive(claims, options, parts, warnings);
    }
    const QString pdfA = both.isEmpty() ? reasonAgainstPdfA(claims, options, parts.left) : both;
    if (!options.archive && !claims.pdfA.isEmpty() && !pdfA.isEmpty()) {
        drop(claims.pdfAName(), pdfA, dropped);
        claims.pdfA.clear();
    }
    const QString pdfUA = both.isEmpty() ? reasonAgainstPdfUA(options, parts.left) : both;
    if (!claims.pdfUA.isEmpty() && !pdfUA.isEmpty()) {
        drop(claims.pdfUAName(), pdfUA, dropped);
        claims.pdfUA.clear();
    }
    return dropped;
}

void putMetadata(QPDF &document, const ImportedMetadata &metadata, const DocumentInfo &info) {
    if (metadata.packet.isEmpty()) {
        return;
    }
    auto stream =
        document.newStream(rewrittenXmp(metadata.packet, info, metadata.claims).toStdString());
    stream.getDict().replaceKey("/Type", QPDFObjectHandle::newName("/Metadata"));
    stream.getDict().replaceKey("/Subtype", QPDFObjectHandle::newName("/XML"));
    document.getRoot().replaceKey("/Metadata", stream);
}

} // namespace folioforge
