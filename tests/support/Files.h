// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

class QDateTime;

namespace folioforge::test {

/// Writes `bytes` to a new file at `path` and returns the path.
QString writeFile(const QString &path, const QByteArray &bytes);

/// Writes a file at `path` whose date of creation is later than that of `older`; false where the
/// file system keeps no such dates.
bool writeFileAfter(const QString &older, const QString &path);

/// Dates the last change of the file at `path`.
void setModified(const QString &path, const QDateTime &when);

/// The bytes of the file at `path`; empty when it cannot be read.
QByteArray readFile(const QString &path);

/// Writes a PNG of `width` x `height` pixels in one colour, at `dpi` pixels per inch, and returns
/// its path.
QString writePng(const QString &path, int width, int height, int dpi = 72);

/// Writes a PDF of `pages` blank pages and returns its path. The first measures 200 x 100 points,
/// each further one 10 more in width.
QString writePdf(const QString &path, int pages);

/// Copies the PDF at `from` to `to`, protected with `userPassword` by qpdf; returns `to`.
QString encryptPdf(const QString &from, const QString &to, const QString &userPassword);

} // namespace folioforge::test
