// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace folioforge::test {

/// The rows of a table of the source tree, without its head, each with its columns.
QList<QStringList> rowsOf(const QString &path);

/// Whether `evidence` of a rule, "room.Unit.test", is a test that there is, or says why the rule
/// needs none: "cannot arise: ".
bool isThere(const QString &evidence);

} // namespace folioforge::test
