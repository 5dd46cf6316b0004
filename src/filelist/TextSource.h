#pragma once

#include <QString>

#include <optional>

namespace folioforge {

/// The text of the file at `path`, read as UTF-8; a byte order mark is not part of it. Nothing when
/// the bytes are not valid UTF-8. Throws Error when the file cannot be read or memory has no room
/// for it.
std::optional<QString> readTextFile(const QString &path);

} // namespace folioforge
