// SPDX-License-Identifier: Apache-2.0

#include "pdf/archive/ArchiveRules.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "image/IccProfile.h"
#include "image/LimitedPicture.h"
#include "image/OldProfile.h"
#include "image/PdfImage.h"
#include "pdf/DocumentInfo.h"
#include "pdf/StreamData.h"
#include "pdf/import/DocumentImport.h"

#include <algorithm>
#include <utility>

namespace folioforge {

namespace {

/// Without characters that XML cannot hold, in which the same is said once more.
QString archivable(const QString &text) {
    QString result = text;
    for (qsizetype i = 0; i < result.size(); ++i) {
        const bool isPair =
            result[i].isHighSurrogate() && i + 1 < result.size() && result[i + 1].isLowSurrogate();
        if (isPair) {
            ++i;
        } else if (result[i].category() == QChar::Other_Control) {
            result[i] = u' ';
        } else if (result[i].isSurrogate() || result[i].unicode() >= 0xFFFE) {
            result[i] = QChar::ReplacementCharacter;
        }
    }
    return result.trimmed();
}

/// Whether a profile is of a class that tells where colours come from (ICC.1, 7.2.5).
bool isOfSource(const QByteArray &profile) {
    const QByteArrayView kind = QByteArrayView(profile).sliced(12, 4);
    return kind == "mntr" || kind == "prtr" || kind == "scnr" || kind == "spac";
}

} // namespace

ArchiveRules::ArchiveRules(ArchiveOptions options)
    : m_options(std::move(options))
    , m_srgb(srgbProfile()) {}

void ArchiveRules::warn(Warning warning) {
    if (std::ranges::find(m_warnings, warning) == m_warnings.end()) {
        m_warnings.push_back(std::move(warning));
    }
}

void ArchiveRules::forgo(const QString &reason, int page) {
    const QString standard = claimsOf(m_options.level).pdfAName();
    if (!m_options.fallback) {
        throw Error(
            Reasons::tr("It cannot go into a document that is %1, since %2").arg(standard, reason));
    }
    m_broken.push_back(page);
    warn({WarningCode::ClaimMissing,
          Reasons::tr("The PDF does not say that it is %1, since %2").arg(standard, reason)});
}

void ArchiveRules::keepPicture(PdfImage &image, int page) {
    if (!image.iccProfile.isEmpty() && !isOfSource(image.iccProfile)) {
        image.iccProfile.clear();
    }
    if (const QString reason = limit(image, pictureLimitsOf(m_options.level)); !reason.isEmpty()) {
        forgo(reason, page);
    }
    for (Warning &warning : std::exchange(image.warnings, {})) {
        warn(std::move(warning));
    }
    if (!image.iccProfile.isEmpty()) {
        return;
    }
    if (image.color == ImageColor::Rgb || image.color == ImageColor::Indexed) {
        image.iccProfile = m_srgb;
    } else if (image.color == ImageColor::Cmyk) {
        image.iccProfile = m_options.inkProfile;
        if (image.iccProfile.isEmpty()) {
            forgo(Reasons::tr("its colours are inks without a profile, and none is given"), page);
        }
    }
}

void ArchiveRules::keepPage(const QSizeF &size, int page) {
    const auto [shorter, longer] = std::minmax({size.width(), size.height()});
    // Part 1 limits the numbers alone.
    const bool isOld = partOf(m_options.level) == 1;
    const double least = isOld ? 0 : 3;
    const int most = isOld ? 32767 : 14400;
    if (shorter < least || longer > most) {
        forgo(Reasons::tr("a page has %1 x %2 units, beyond %3 to %4")
                  .arg(size.width())
                  .arg(size.height())
                  .arg(least)
                  .arg(most),
              page);
    }
}

void ArchiveRules::keepSource(const ImportedDocument &source, bool isEncrypted,
                              const ImportedOutputIntents *before, int page) {
    const QString standard = claimsOf(m_options.level).pdfAName();
    const ImportedOutputIntents &own = source.outputIntents;
    const bool mixes = before != nullptr && own.components > 0;
    if (!source.metadata.notForArchive.isEmpty()) {
        forgo(source.metadata.notForArchive, page);
    } else if (isEncrypted) {
        forgo(Reasons::tr("it is protected, which the standard forbids"), page);
    } else if (mixes && own.components != before->components) {
        forgo(Reasons::tr("its colours are meant for another kind of device than those of the "
                          "documents before it"),
              page);
    } else {
        warn({WarningCode::ClaimTaken,
              Reasons::tr("The PDF says that it is %1 because this document says so; whether that "
                          "is true is not checked")
                  .arg(standard)});
    }
    if (mixes && own.meaning != before->meaning) {
        warn({WarningCode::ColorsDiffer,
              Reasons::tr("Its colours without a profile are shown as those of the documents "
                          "before it")});
    }
}

void ArchiveRules::keepInfo(DocumentInfo &info) const {
    info.leavesOutEmpty = true;
    for (QString *field :
         {&info.title, &info.author, &info.subject, &info.keywords, &info.creator}) {
        *field = archivable(*field);
        constexpr qsizetype kMax = 16'382; // Of 32,767 bytes, in UTF-16 with its mark.
        if (field->size() > kMax) {
            throw Error(Reasons::tr("A property of the document is longer than %1 allows")
                            .arg(claimsOf(m_options.level).pdfAName()));
        }
    }
}

FontRules ArchiveRules::fontRules() const {
    return {.allUnicode = true, .cidSets = partOf(m_options.level) == 1};
}

Warnings ArchiveRules::takeWarnings() {
    return std::exchange(m_warnings, {});
}

void ArchiveRules::rollBack(int page) {
    std::erase_if(m_broken, [page](int broken) { return broken >= page; });
    m_warnings.clear();
}

QPDFObjectHandle srgbOutputIntent(StreamData &streams) {
    auto profile = QPDFObjectHandle::newDictionary();
    profile.replaceKey("/N", QPDFObjectHandle::newInteger(3));
    auto intent = QPDFObjectHandle::parse("<< /Type /OutputIntent /S /GTS_PDFA1 "
                                          "/OutputConditionIdentifier (sRGB IEC61966-2.1) "
                                          "/Info (sRGB IEC61966-2.1) >>");
    intent.replaceKey("/DestOutputProfile", streams.deflated(profile, srgbProfile()));
    return intent;
}

} // namespace folioforge
