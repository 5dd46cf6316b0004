// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace folioforge::test {

/// A file of the source tree; `path` counts from its top. Such paths are compiled into one file, so
/// that the objects of all others can be shared between checkouts by a compiler cache.
QString inSource(const QString &path);

/// A file of the build tree, likewise.
QString inBuild(const QString &path);

/// What the script of this name wrote for a test that asks for it: see folioforge_test_needs().
QString madeBy(const QString &script);

/// The bundle that was built.
QString bundlePath();

/// The programs in it: of the command line, and of the window.
QString commandLineProgram();
QString windowProgram();

} // namespace folioforge::test
