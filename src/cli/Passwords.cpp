// SPDX-License-Identifier: Apache-2.0

#include "cli/Arguments.h"
#include "cli/OptionValues.h"
#include "files/ProcessSetup.h"
#include "pdf/Password.h"
#include "text/TextDecoder.h"

#include <QFile>

#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

constexpr qint64 kMaxLineLength = 65536;

/// The first line of `file` without its line ending.
QByteArray readLine(QFile &file, const QByteArray &name) {
    QByteArray line = file.readLine(kMaxLineLength);
    if (file.error() != QFileDevice::NoError) {
        throw ArgumentFault(u"The password file \"%1\" cannot be read: %2"_s.arg(
            QString::fromUtf8(name), file.errorString()));
    }
    while (line.endsWith('\n') || line.endsWith('\r')) {
        line.chop(1);
    }
    return line;
}

/// Reads passwords one after another; standard input is opened once and goes on where the last
/// line ended.
class PasswordReader {
  public:
    std::optional<QString> read(const std::optional<QByteArray> &name, QLatin1StringView option,
                                const char *variable) {
        if (!name && !qEnvironmentVariableIsSet(variable)) {
            return std::nullopt;
        }
        const QByteArray bytes = name ? firstLine(*name) : ambient(variable);
        try {
            return textOf(bytes);
        } catch (const ArgumentFault &) {
            // The message of textOf() would print the password.
            throw ArgumentFault(u"%1: The password is not valid UTF-8"_s.arg(
                name ? option : QLatin1StringView(variable)));
        }
    }

  private:
    /// Empty is what a script leaves that failed to find the password.
    static QByteArray ambient(const char *variable) {
        QByteArray bytes = qgetenv(variable);
        if (bytes.isEmpty()) {
            throw ArgumentFault(u"%1 is set but empty"_s.arg(QLatin1StringView(variable)));
        }
        return bytes;
    }

    QByteArray firstLine(const QByteArray &name) {
        if (name == "-") {
            if (!m_input.isOpen() && !m_input.open(stdin, QIODevice::ReadOnly)) {
                throw ArgumentFault(u"Standard input cannot be read"_s);
            }
            return readLine(m_input, name);
        }
        QFile file(QFile::decodeName(name));
        if (!file.open(QIODevice::ReadOnly)) {
            throw ArgumentFault(u"The password file \"%1\" cannot be read: %2"_s.arg(
                QString::fromUtf8(name), file.errorString()));
        }
        return readLine(file, name);
    }

    QFile m_input;
};

} // namespace

InputPasswords readInputPasswords(const Arguments &arguments) {
    if (!arguments.inputPasswordFile) {
        return nullptr;
    }
    constexpr qint64 kMaxBytes = 1 << 20;
    const QByteArray lines =
        contentsOf(*arguments.inputPasswordFile, "--input-password-file"_L1, kMaxBytes);
    std::vector<QByteArray> passwords;
    for (const QByteArray &line : linesIn(lines)) {
        if (line.isEmpty()) {
            continue; // The empty password is tried anyway.
        }
        const QString password = decodeText(line);
        if (password.isNull()) { // The line itself is not shown.
            throw ArgumentFault(u"--input-password-file: a line is not valid UTF-8"_s);
        }
        passwords.push_back(line);
        if (passwordProblem(password)) {
            continue;
        }
        if (QByteArray prepared = preparedPassword(password); prepared != line) {
            passwords.push_back(std::move(prepared));
        }
    }
    return std::make_shared<const std::vector<QByteArray>>(std::move(passwords));
}

void readPasswords(const Arguments &arguments, SecuritySettings &security) {
    forbidCoreDumps();
    PasswordReader reader;
    if (const auto user = reader.read(arguments.userPasswordFile, "--user-password-file"_L1,
                                      "FOLIOFORGE_USER_PASSWORD")) {
        security.useUserPassword = true;
        security.userPassword = *user;
    }
    if (const auto owner = reader.read(arguments.ownerPasswordFile, "--owner-password-file"_L1,
                                       "FOLIOFORGE_OWNER_PASSWORD")) {
        security.useOwnerPassword = true;
        security.ownerPassword = *owner;
    }
    // Without it the document would come out open to what is to be refused.
    if ((security.refusePrint || security.refuseCopy) && !security.useOwnerPassword) {
        throw ArgumentFault(u"--refuse-print and --refuse-copy need an owner password"_s);
    }
}

} // namespace folioforge
