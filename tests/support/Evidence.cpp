// SPDX-License-Identifier: Apache-2.0

#include "support/Evidence.h"

#include "support/Files.h"
#include "support/Places.h"

using namespace Qt::StringLiterals;

namespace folioforge::test {

QList<QStringList> rowsOf(const QString &path) {
    QList<QStringList> rows;
    const QString text = QString::fromUtf8(readFile(inSource(path)));
    for (const QString &line : text.split(u'\n', Qt::SkipEmptyParts).sliced(1)) {
        rows += line.split(u'\t');
    }
    return rows;
}

bool isThere(const QString &evidence) {
    if (evidence.startsWith(u"cannot arise: ")) {
        return true;
    }
    const QStringList name = evidence.split(u'.');
    const QByteArray source =
        readFile(inSource(u"tests/%1/%2Test.cpp"_s.arg(name.value(0), name.value(1))));
    return source.contains("    void " + name.value(2).toUtf8() + "() {");
}

} // namespace folioforge::test
