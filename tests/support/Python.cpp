// SPDX-License-Identifier: Apache-2.0

#include "support/Python.h"

#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace folioforge::test {

QString python() {
    const QString own = QStandardPaths::findExecutable(u"python3"_s, {u"/usr/bin"_s});
    return own.isEmpty() ? QStandardPaths::findExecutable(u"python3"_s) : own;
}

} // namespace folioforge::test
