// SPDX-License-Identifier: Apache-2.0

#include "cli/Arguments.h"
#include "cli/OptionValues.h"
#include "convert/Checks.h"
#include "convert/ImagePlacement.h"
#include "convert/OutputName.h"
#include "pdf/Password.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

QString marginFault(QLatin1StringView option, QLatin1StringView side, qint64 points) {
    return u"%1: The %2 margin has %3 points; a margin has 0 to %4"_s.arg(option, side)
        .arg(points)
        .arg(kMaxMargin);
}

/// The two margins leave nothing between them.
QString roomFault(QLatin1StringView option, QLatin1StringView sides, qint64 points,
                  QLatin1StringView length, double page) {
    return u"%1: The margins %2 have %3 points together; the page is %4 points %5"_s
        .arg(option, sides)
        .arg(points)
        .arg(page)
        .arg(length);
}

/// What `found` says of margins to users of the window, in the words of their option.
QString inWordsOf(QLatin1StringView option, const Notice &found, const PageMargins &margins,
                  QSizeF page) {
    switch (found.setting) {
    case Setting::TextTop:
    case Setting::ImageTop:
        return marginFault(option, "top"_L1, margins.top);
    case Setting::TextLeft:
    case Setting::ImageLeft:
        return marginFault(option, "left"_L1, margins.left);
    case Setting::TextBottom:
    case Setting::ImageBottom:
        return marginFault(option, "bottom"_L1, margins.bottom);
    case Setting::TextRight:
    case Setting::ImageRight:
        return marginFault(option, "right"_L1, margins.right);
    case Setting::TextWidth:
    case Setting::ImageWidth:
        return roomFault(option, "left and right"_L1, margins.left + margins.right, "wide"_L1,
                         page.width());
    case Setting::TextHeight:
    case Setting::ImageHeight:
        return roomFault(option, "above and below"_L1, margins.top + margins.bottom, "high"_L1,
                         page.height());
    case Setting::UserPassword:
    case Setting::OwnerPassword:
    case Setting::OutputFolder:
    case Setting::OutputName:
    case Setting::None:
        break;
    }
    return found.message;
}

std::optional<QString> passwordFault(const SecuritySettings &security) {
    const auto found = checkSecuritySettings(security);
    if (!found) {
        return std::nullopt;
    }
    const bool ofUser = found->setting == Setting::UserPassword;
    const QString &password = ofUser ? security.userPassword : security.ownerPassword;
    const QString option = ofUser ? u"--user-password-file: "_s : u"--owner-password-file: "_s;
    if (password.isEmpty()) {
        return option + u"The password is empty"_s;
    }
    // What is left to say of one without a problem is that both are the same.
    return option + passwordProblem(password).value_or(
                        u"In a PDF this password is the same as that of --user-password-file"_s);
}

QString quoted(const QString &path) {
    return u'"' + path + u'"';
}

void requireParent(const QString &folder, const QString &option) {
    const QString parent = QFileInfo(folder).path();
    if (!QFileInfo::exists(parent)) {
        throw ArgumentFault(option + u"%1 is not made, as the folder for it, %2, is missing"_s.arg(
                                         quoted(folder), quoted(parent)));
    }
}

/// What stands there already is looked at by others.
void makeFolder(const QString &folder, const QString &option) {
    ::mkdir(QFile::encodeName(folder).constData(), S_IRWXU | S_IRWXG | S_IRWXO);
    const int reason = errno;
    if (!QFileInfo::exists(folder)) {
        throw ArgumentFault(option +
                            systemError(u"Cannot make %1"_s.arg(quoted(folder)), reason).reason());
    }
}

} // namespace

std::optional<QString> settingsFault(const Arguments &arguments) {
    const ConversionOptions &options = arguments.options;
    if (auto fault = passwordFault(options.security)) {
        return fault;
    }
    const PageSetup &text = options.textPage;
    if (const auto found = checkTextPageSizeSettings(text)) {
        return inWordsOf("--text-margins"_L1, *found, text.margins, getTextPageSize(text));
    }
    for (const PageSetup &image :
         pagesOfImages(options.imagePage, options.imageLayout.orientation)) {
        if (const auto found = checkImagePageSizeSettings(image)) {
            return inWordsOf("--image-margins"_L1, *found, image.margins, getImagePageSize(image));
        }
    }
    if (arguments.manifest == u"-") {
        return u"--manifest: It goes into a file; ./- names one"_s;
    }
    if (!arguments.manifest.isEmpty() && !arguments.mayReplaceManifest &&
        isNameTaken(arguments.manifest)) {
        return u"--manifest: %1 exists; take another name, or --overwrite"_s.arg(
            quoted(arguments.manifest));
    }
    if (!options.merge || !options.verifyOnly.isEmpty()) {
        return std::nullopt;
    }
    if (QFileInfo(mergedFilePath(options)).isDir()) {
        return u"--merge: %1 is a folder"_s.arg(quoted(mergedFilePath(options)));
    }
    const bool refused = options.overwrite == Overwrite::Never && checkMergedFile(options);
    return refused ? std::optional(nameTakenFault(options)) : std::nullopt;
}

QString nameTakenFault(const ConversionOptions &options) {
    return u"--merge: %1 exists; take another name, or --overwrite"_s.arg(
        quoted(mergedFilePath(options)));
}

void prepareOutputFolder(const ConversionOptions &options) {
    const QString &folder = options.outputFolder;
    const QString option = options.merge ? u"--merge: "_s : u"--output-folder: "_s;
    if (!options.merge) {
        requireParent(folder, option);
        if (options.dryRun && !QFileInfo::exists(folder)) {
            return;
        }
        makeFolder(folder, option);
    }
    const QFileInfo info(folder);
    if (!info.exists()) {
        throw ArgumentFault(option + u"There is no folder %1"_s.arg(quoted(folder)));
    }
    if (!info.isDir()) {
        throw ArgumentFault(option + quoted(folder) + u" is not a folder"_s);
    }
    if (::access(QFile::encodeName(folder).constData(), W_OK | X_OK) != 0) {
        throw ArgumentFault(option +
                            systemError(u"Cannot write into %1"_s.arg(quoted(folder))).reason());
    }
}

} // namespace folioforge
