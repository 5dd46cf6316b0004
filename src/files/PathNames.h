// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace folioforge {

/// Path extension as the last component's text after its last full stop; empty when there is none
/// or nothing stands before the full stop.
QString pathExtension(const QString &path);

/// `path` without its extension and the full stop before it; the same where it has none.
QString withoutExtension(const QString &path);

/// `base` followed by `ending`, whole characters of the base cut off where a file name of the file
/// systems in use has no room for them.
QString fittingName(QString base, const QString &ending);

/// The same for a whole name, which keeps its extension.
QString fittingName(const QString &name);

/// The text after the last slash of `path`, ignoring slashes at its end.
QString lastPathComponent(const QString &path);

} // namespace folioforge
