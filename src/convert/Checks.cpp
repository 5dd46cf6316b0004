// SPDX-License-Identifier: Apache-2.0

#include "convert/Checks.h"

#include "convert/OutputName.h"
#include "pdf/Password.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace folioforge {
namespace {

Notice otherFolderNotice(const QString &problem, Setting setting) {
    Notice found = notice(problem, setting);
    found.advice = QCoreApplication::translate("Checks", "Click \"OK\" to select another folder.");
    return found;
}

Notice equalPasswordsNotice() {
    return notice(QCoreApplication::translate("Checks", "The passwords can not be the same."),
                  Setting::OwnerPassword);
}

/// A password that no encrypted document can hold would fail only once everything is converted.
std::optional<Notice> problemOf(bool used, const QString &password, Setting setting) {
    const auto problem = used ? passwordProblem(password) : std::nullopt;
    return problem ? std::optional(notice(
                         QCoreApplication::translate("Checks", "%1.").arg(*problem), setting))
                   : std::nullopt;
}

} // namespace

std::optional<Notice> checkOutputFolder(const QString &folder) {
    if (folder.isEmpty()) {
        return notice(
            QCoreApplication::translate(
                "Checks", "Please select an output folder to store the output documents."),
            Setting::OutputFolder);
    }
    const QFileInfo info(folder);
    if (!info.isDir() || !info.isWritable()) {
        return otherFolderNotice(
            QCoreApplication::translate(
                "Checks", "Selected output folder does not exist or is not writable."),
            Setting::OutputFolder);
    }
    return std::nullopt;
}

std::optional<Notice> checkSecuritySettings(const SecuritySettings &settings) {
    const QString &user = settings.userPassword;
    const QString &owner = settings.ownerPassword;
    const bool both = settings.useUserPassword && settings.useOwnerPassword;
    if (settings.useUserPassword && user.isEmpty()) {
        return notice(QCoreApplication::translate("Checks", "Please input user password."),
                      Setting::UserPassword);
    }
    if (settings.useOwnerPassword && owner.isEmpty()) {
        return notice(QCoreApplication::translate("Checks", "Please input owner password."),
                      Setting::OwnerPassword);
    }
    if (both && user == owner) {
        return equalPasswordsNotice();
    }
    if (auto found = problemOf(settings.useUserPassword, user, Setting::UserPassword)) {
        return found;
    }
    if (auto found = problemOf(settings.useOwnerPassword, owner, Setting::OwnerPassword)) {
        return found;
    }
    // Passwords that differ as typed can be one in the document, where the user password would
    // then lift every restriction.
    if (both && preparedPassword(user) == preparedPassword(owner)) {
        return equalPasswordsNotice();
    }
    return std::nullopt;
}

std::optional<Notice> checkArchive(const ConversionOptions &options) {
    const SecuritySettings &security = options.security;
    if (!options.archive || !(security.useUserPassword || security.useOwnerPassword)) {
        return std::nullopt;
    }
    return notice(
        QCoreApplication::translate("Checks", "A PDF for archives can not have passwords."),
        security.useUserPassword ? Setting::UserPassword : Setting::OwnerPassword);
}

std::optional<Notice> checkMergedFile(const ConversionOptions &options) {
    if (!options.merge) {
        return std::nullopt;
    }
    if (options.outputName.isEmpty() || isNameOfFolder(options.outputName)) {
        return notice(QCoreApplication::translate("Checks", "Please input output file name."),
                      Setting::OutputName);
    }
    if (isNameTaken(mergedFilePath(options))) {
        return nameExistsNotice();
    }
    return std::nullopt;
}

std::vector<Notice> faultsOf(const ConversionOptions &options) {
    std::vector<Notice> faults;
    for (const auto &found :
         {checkOutputFolder(options.outputFolder), checkSecuritySettings(options.security),
          checkArchive(options), checkTextPageSizeSettings(options.textPage),
          checkImagePageSizeSettings(options.imagePage), checkMergedFile(options)}) {
        if (found) {
            faults.push_back(*found);
        }
    }
    return faults;
}

Notice folderNotWritableNotice() {
    return otherFolderNotice(
        QCoreApplication::translate("Checks", "Selected output folder is not writable."),
        Setting::None);
}

Notice nameExistsNotice() {
    return notice(
        QCoreApplication::translate(
            "Checks", "File name already exists in output folder, please input another name."),
        Setting::OutputName);
}

} // namespace folioforge
