// SPDX-License-Identifier: Apache-2.0

#include "cli/ArchiveArguments.h"

#include "cli/OptionValues.h"
#include "image/IccProfile.h"
#include "image/LimitedPicture.h"
#include "image/OldProfile.h"
#include "pdf/archive/ArchiveLevel.h"

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// Throws ArgumentFault where an option has nothing to do without --archive.
void requireArchive(const ArchiveArguments &archive) {
    const QLatin1StringView option = archive.fallback         ? "--archive-fallback"_L1
                                     : archive.embedSources   ? "--embed-sources"_L1
                                     : archive.inkProfileFile ? "--cmyk-profile"_L1
                                                              : QLatin1StringView();
    if (!option.isEmpty()) {
        throw ArgumentFault(option + u" needs --archive"_s);
    }
}

QByteArray readInkProfile(const QByteArray &name, ArchiveLevel level) {
    constexpr qint64 kMaxBytes = 16 << 20;
    constexpr QLatin1StringView kOption = "--cmyk-profile"_L1;
    const QString shown = u"%1: \"%2\""_s.arg(kOption, QString::fromUtf8(name));
    QByteArray profile = fittingProfile(contentsOf(name, kOption, kMaxBytes), ImageColor::Cmyk);
    if (profile.isEmpty()) {
        throw ArgumentFault(shown + u" is no ICC profile of CMYK colours"_s);
    }
    const int version = versionOfProfile(profile);
    const int newest = pictureLimitsOf(level).profileVersion;
    if (version > newest) {
        throw ArgumentFault(shown + u" is of version %1, and %2 takes %3"_s.arg(version)
                                        .arg(claimsOf(level).pdfAName())
                                        .arg(newest));
    }
    return profile;
}

} // namespace

const std::vector<Option> &archiveOptions() {
    using Value = const QByteArray &;
    static const std::vector<Option> options{
        {"--archive", Option::Valued,
         [](Arguments &to, Value value) {
             to.archive.level = chosen<ArchiveLevel>(
                 textOf(value), {{QLatin1StringView("pdfa-1b"), ArchiveLevel::PdfA1b},
                                 {QLatin1StringView("pdfa-2u"), ArchiveLevel::PdfA2u},
                                 {QLatin1StringView("pdfa-2a"), ArchiveLevel::PdfA2a},
                                 {QLatin1StringView("pdfa-3u"), ArchiveLevel::PdfA3u},
                                 {QLatin1StringView("pdfa-3a"), ArchiveLevel::PdfA3a}});
         }},
        {"--archive-fallback", Option::Switch,
         [](Arguments &to, Value) { to.archive.fallback = true; }},
        {"--cmyk-profile", Option::Valued,
         [](Arguments &to, Value value) { to.archive.inkProfileFile = value; }},
        {"--embed-sources", Option::Switch,
         [](Arguments &to, Value) { to.archive.embedSources = true; }},
    };
    return options;
}

void prepareArchive(Arguments &arguments) {
    const ArchiveArguments &archive = arguments.archive;
    if (!archive.level) {
        requireArchive(archive);
        return;
    }
    const SecuritySettings &security = arguments.options.security;
    if (security.useUserPassword || security.useOwnerPassword) {
        throw ArgumentFault(u"--archive forbids passwords: a PDF for archives is not encrypted"_s);
    }
    if (archive.embedSources && partOf(*archive.level) != 3) {
        throw ArgumentFault(u"--embed-sources needs --archive pdfa-3u or pdfa-3a"_s);
    }
    if ((arguments.options.tagged || arguments.options.accessible) && partOf(*archive.level) == 1) {
        throw ArgumentFault(u"--archive pdfa-1b is not tagged; take pdfa-2a"_s);
    }
    ArchiveOptions &options = arguments.options.archive.emplace();
    options.level = *archive.level;
    options.fallback = archive.fallback;
    options.embedSources = archive.embedSources;
    if (archive.inkProfileFile) {
        options.inkProfile = readInkProfile(*archive.inkProfileFile, options.level);
    }
}

} // namespace folioforge
