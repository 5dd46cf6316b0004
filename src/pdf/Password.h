#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace folioforge {

/// Longest password of AES-256 encryption in bytes of UTF-8 (ISO 32000-2, 7.6.4.3.3); a longer one
/// makes a file that no reader opens.
inline constexpr int kMaxPasswordBytes = 127;

/// Why `password` cannot protect a document, as a sentence without full stop; nothing when it can.
/// An empty password has no problem.
std::optional<QString> passwordProblem(const QString &password);

/// The bytes that stand for `password` in an encrypted document: SASLprep (RFC 4013), then UTF-8.
/// Throws Error with the text of passwordProblem() where there is one.
QByteArray preparedPassword(const QString &password);

/// From now on a crash of this process leaves no image of its memory, which holds passwords.
void forbidCoreDumps();

} // namespace folioforge
