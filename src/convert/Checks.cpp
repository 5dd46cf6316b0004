#include "convert/Checks.h"

#include "convert/OutputName.h"
#include "pdf/Password.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

std::optional<Notice> checkOutputFolder(const QString &folder) {
    if (folder.isEmpty()) {
        return notice(u"Please select an output folder to store the output documents."_s);
    }
    const QFileInfo info(folder);
    if (!info.isDir() || !info.isWritable()) {
        return notice(u"Selected output folder does not exist or is not writable. "
                      "Click \"OK\" to select another folder."_s);
    }
    return std::nullopt;
}

/// A password that no encrypted document can hold would fail only once everything is converted.
std::optional<Notice> checkPasswordsFit(const SecuritySettings &security) {
    const auto problem = [](bool used, const QString &password) {
        return used ? passwordProblem(password) : std::nullopt;
    };
    auto found = problem(security.useUserPassword, security.userPassword);
    if (!found) {
        found = problem(security.useOwnerPassword, security.ownerPassword);
    }
    return found ? std::optional(notice(*found + u'.')) : std::nullopt;
}

/// Passwords that differ as typed can be one in the document, where the user password would then
/// lift every restriction.
std::optional<Notice> checkPasswordsStayTwo(const SecuritySettings &security) {
    const bool both = security.useUserPassword && security.useOwnerPassword;
    if (both &&
        preparedPassword(security.userPassword) == preparedPassword(security.ownerPassword)) {
        return equalPasswordsNotice();
    }
    return std::nullopt;
}

std::optional<Notice> checkMergedFile(const ConversionOptions &options) {
    if (!options.merge) {
        return std::nullopt;
    }
    if (options.outputName.isEmpty()) {
        return notice(u"Please input output file name."_s);
    }
    if (isNameTaken(mergedFilePath(options))) {
        return nameExistsNotice();
    }
    return std::nullopt;
}

} // namespace

std::optional<Notice> checkConversion(const ConversionOptions &options) {
    if (auto found = checkOutputFolder(options.outputFolder)) {
        return found;
    }
    if (auto found = checkSecuritySettings(options.security)) {
        return found;
    }
    if (auto found = checkPasswordsFit(options.security)) {
        return found;
    }
    if (auto found = checkPasswordsStayTwo(options.security)) {
        return found;
    }
    if (auto found = checkTextPageSizeSettings(options.textPage)) {
        return found;
    }
    if (auto found = checkImagePageSizeSettings(options.imagePage)) {
        return found;
    }
    return checkMergedFile(options);
}

Notice nameExistsNotice() {
    return notice(u"File name already exists in output folder, please input another name."_s);
}

} // namespace folioforge
