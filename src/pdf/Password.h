// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace folioforge {

/// Longest password of AES-256 encryption, in bytes of UTF-8 (ISO 32000-2, 7.6.4.3.3). No reader
/// opens a file with a longer one.
inline constexpr int kMaxPasswordBytes = 127;

/// The bytes of passwords that encrypted sources are opened with, the empty one always among them;
/// null where such sources are refused.
using InputPasswords = std::shared_ptr<const std::vector<QByteArray>>;

/// Encryption of a document: AES-256, revision 6. What is not refused is allowed.
struct Encryption {
    QString userPassword;
    QString ownerPassword; ///< When it is empty, the user password is the owner's too.
    bool refusePrint = false;
    bool refuseCopy = false;
};

/// The bytes of a document's passwords.
struct PreparedPasswords {
    QByteArray user;
    QByteArray owner; ///< The user's where there is none, or everybody would be the owner.
};

/// Why `password` cannot protect a document, as a sentence without a full stop; nothing when it
/// can. An empty password has no problem.
std::optional<QString> passwordProblem(const QString &password);

/// The bytes that stand for `password` in an encrypted document: SASLprep (RFC 4013), then UTF-8.
/// Throws Error with the text of passwordProblem() where there is one.
QByteArray preparedPassword(const QString &password);
/// The bytes of both passwords of `encryption`. Throws as preparedPassword() does.
PreparedPasswords preparedPasswords(const Encryption &encryption);

} // namespace folioforge
