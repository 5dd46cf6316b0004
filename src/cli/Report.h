// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "cli/InputResult.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

namespace folioforge {

/// What the report begins with, as one JSON object on one line: its version, the program's and
/// those of its libraries, and the lengths that were `rounded`.
QByteArray reportHead(const QStringList &rounded);

/// The result as one JSON object on one line, without a line ending.
QByteArray toJson(const InputResult &result);

/// What a manifest begins with, one JSON object on one line: its version, the program's and those
/// of its libraries, when it is made and the options that were given.
QByteArray manifestHead(const QStringList &options, const QDateTime &created);

/// A file with what it holds as one JSON object.
QByteArray toJson(const QString &file, const FileDigest &digest);

/// What a compression pass saved, in words: bytes, images reduced, images left and why.
QString toWords(const CompressionOutcome &compression);

} // namespace folioforge
