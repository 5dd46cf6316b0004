// SPDX-License-Identifier: Apache-2.0

#include "cli/Arguments.h"
#include "cli/OptionValues.h"
#include "convert/Checks.h"
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

QString fullWidth(QLatin1StringView option, const PageMargins &margins, QSizeF page) {
    return roomFault(option, "left and right"_L1, margins.left + margins.right, "wide"_L1,
                     page.width());
}

QString fullHeight(QLatin1StringView option, const PageMargins &margins, QSizeF page) {
    return roomFault(option, "above and below"_L1, margins.top + margins.bottom, "high"_L1,
                     page.height());
}

/// What `found` says to users of the window, in the words of the options.
QString inWordsOfOptions(const Notice &found, const Arguments &arguments) {
    const ConversionOptions &options = arguments.options;
    const PageMargins &text = options.textPage.margins;
    const PageMargins &image = options.imagePage.margins;
    const auto ofText = "--text-margins"_L1;
    const auto ofImage = "--image-margins"_L1;
    switch (found.setting) {
    case Setting::TextTop:
        return marginFault(ofText, "top"_L1, text.top);
    case Setting::TextLeft:
        return marginFault(ofText, "left"_L1, text.left);
    case Setting::TextBottom:
        return marginFault(ofText, "bottom"_L1, text.bottom);
    case Setting::TextRight:
        return marginFault(ofText, "right"_L1, text.right);
    case Setting::TextWidth:
        return fullWidth(ofText, text, getTextPageSize(options.textPage));
    case Setting::TextHeight:
        return fullHeight(ofText, text, getTextPageSize(options.textPage));
    case Setting::ImageTop:
        return marginFault(ofImage, "top"_L1, image.top);
    case Setting::ImageLeft:
        return marginFault(ofImage, "left"_L1, image.left);
    case Setting::ImageBottom:
        return marginFault(ofImage, "bottom"_L1, image.bottom);
    case Setting::ImageRight:
        return marginFault(ofImage, "right"_L1, image.right);
    case Setting::ImageWidth:
        return fullWidth(ofImage, image, getImagePageSize(options.imagePage));
    case Setting::ImageHeight:
        return fullHeight(ofImage, image, getImagePageSize(options.imagePage));
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

} // namespace

std::optional<QString> settingsFault(const Arguments &arguments) {
    const ConversionOptions &options = arguments.options;
    if (auto fault = passwordFault(options.security)) {
        return fault;
    }
    auto found = checkTextPageSizeSettings(options.textPage);
    if (!found) {
        found = checkImagePageSizeSettings(options.imagePage);
    }
    if (found) {
        return inWordsOfOptions(*found, arguments);
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
    const QByteArray name = QFile::encodeName(folder);
    const QString option = options.merge ? u"--merge: "_s : u"--output-folder: "_s;
    const QString parent = QFileInfo(folder.endsWith(u'/') ? folder.chopped(1) : folder).path();
    if (!options.merge && !QFileInfo::exists(parent)) {
        throw ArgumentFault(option + u"%1 is not made, as the folder for it, %2, is missing"_s.arg(
                                         quoted(folder), quoted(parent)));
    }
    if (options.dryRun && !options.merge && !QFileInfo::exists(folder)) {
        return;
    }
    if (!options.merge) {
        ::mkdir(name.constData(), S_IRWXU | S_IRWXG | S_IRWXO); // What it is then, is looked at.
    }
    const int reason = errno;
    const QFileInfo info(folder);
    if (!info.exists()) {
        const QString fault =
            options.merge ? u"There is no folder %1"_s.arg(quoted(folder))
                          : systemError(u"Cannot make %1"_s.arg(quoted(folder)), reason).reason();
        throw ArgumentFault(option + fault);
    }
    if (!info.isDir()) {
        throw ArgumentFault(option + quoted(folder) + u" is not a folder"_s);
    }
    if (::access(name.constData(), W_OK | X_OK) != 0) {
        throw ArgumentFault(option +
                            systemError(u"Cannot write into %1"_s.arg(quoted(folder))).reason());
    }
}

} // namespace folioforge
