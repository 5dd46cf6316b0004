// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace folioforge {

/// What a file holds, for the report.
struct FileDigest {
    qint64 bytes = 0;
    QByteArray sha256; ///< In hexadecimal digits.
};

/// Reads the file at `path`; nothing where it cannot be read as a whole.
std::optional<FileDigest> digestOf(const QString &path);

} // namespace folioforge
