// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "cli/InputResult.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace folioforge {

/// What the report begins with, as one JSON object on one line: its version, the program's and
/// those of its libraries, and the lengths that were `rounded`.
QByteArray reportHead(const QStringList &rounded);

/// The result as one JSON object on one line, without a line ending.
QByteArray toJson(const InputResult &result);

/// What a compression pass saved, in words: bytes, images reduced, images left and why.
QString toWords(const CompressionOutcome &compression);

} // namespace folioforge
