// SPDX-License-Identifier: Apache-2.0

#include "pdf/Password.h"

#include "error/Error.h"

#include <QCoreApplication>

#include <unicode/usprep.h>

#include <memory>
#include <variant>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

struct CloseProfile {
    void operator()(UStringPrepProfile *profile) const { usprep_close(profile); }
};
using Profile = std::unique_ptr<UStringPrepProfile, CloseProfile>;

/// SASLprep of `text`, or the error. Characters newer than Unicode 3.2, the profile's version, pass
/// unchanged.
std::variant<QString, UErrorCode> saslprep(const QString &text) {
    UErrorCode status = U_ZERO_ERROR;
    const Profile profile(usprep_openByType(USPREP_RFC4013_SASLPREP, &status));
    const auto prepare = [&](QString &output) {
        return usprep_prepare(
            profile.get(), reinterpret_cast<const UChar *>(text.utf16()),
            static_cast<int32_t>(text.size()), reinterpret_cast<UChar *>(output.data()),
            static_cast<int32_t>(output.size()), USPREP_ALLOW_UNASSIGNED, nullptr, &status);
    };
    QString prepared(text.size(), Qt::Uninitialized);
    int32_t length = prepare(prepared);
    if (status == U_BUFFER_OVERFLOW_ERROR) {
        status = U_ZERO_ERROR;
        prepared.resize(length);
        length = prepare(prepared);
    }
    if (U_FAILURE(status)) {
        return status;
    }
    prepared.truncate(length);
    return prepared;
}

std::variant<QByteArray, QString> prepare(const QString &password) {
    if (!password.isValidUtf16()) {
        return QCoreApplication::translate("Password", "The password contains half a character");
    }
    const auto prepared = saslprep(password);
    if (const auto *status = std::get_if<UErrorCode>(&prepared)) {
        return *status == U_STRINGPREP_CHECK_BIDI_ERROR
                   ? QCoreApplication::translate(
                         "Password",
                         "The password mixes characters written from right to left with "
                         "others in a way that passwords cannot have")
                   : QCoreApplication::translate(
                         "Password",
                         "The password contains a character that passwords cannot have");
    }
    QByteArray bytes = std::get<QString>(prepared).toUtf8();
    if (bytes.isEmpty() && !password.isEmpty()) {
        return QCoreApplication::translate("Password",
                                           "The password contains no visible character");
    }
    if (bytes.size() > kMaxPasswordBytes) {
        return QCoreApplication::translate("Password", "The password is longer than %1 bytes")
            .arg(kMaxPasswordBytes);
    }
    return bytes;
}

} // namespace

std::optional<QString> passwordProblem(const QString &password) {
    const auto result = prepare(password);
    const auto *problem = std::get_if<QString>(&result);
    return problem ? std::optional(*problem) : std::nullopt;
}

QByteArray preparedPassword(const QString &password) {
    auto result = prepare(password);
    if (const auto *problem = std::get_if<QString>(&result)) {
        throw Error(*problem);
    }
    return std::get<QByteArray>(result);
}

PreparedPasswords preparedPasswords(const Encryption &encryption) {
    const bool ownerIsUser = encryption.ownerPassword.isEmpty();
    return {preparedPassword(encryption.userPassword),
            preparedPassword(ownerIsUser ? encryption.userPassword : encryption.ownerPassword)};
}

} // namespace folioforge
