// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Notice.h"
#include "filelist/FileKind.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace folioforge {

class ReadableLinks;

/// The names of the text and image files of `folder`, as the file system's own bytes: one level, in
/// the file system's order, hidden ones too. PDF files and folders are left out. Throws Error when
/// the folder cannot be listed to its end.
std::vector<QByteArray> recognisedNames(const QByteArray &folder);

/// Appends to `files` the paths ("folder/name", or links to them) of what recognisedNames() gives;
/// nothing where `folder` cannot be listed.
void addDirectorie(const QString &folder, QStringList &files, ReadableLinks &readableLinks);

/// Size text of a file of `bytes` bytes, taken as a signed 32-bit number and rounded up to whole
/// blocks of 4096: "4 KB", "%d KB" or "%0.1f MB".
QString sizeText(qint64 bytes);

/// The number of pages of the PDF at `path`. Throws Error when it may not enter the list, because
/// it is encrypted or does not open as a PDF.
int countPdfPages(const QString &path);

/// The one alert for the PDF files that were refused, in order, one a line. The paths are read as a
/// format string without arguments: "%%" becomes "%" and any other conversion stays.
Notice badFilesNotice(const QStringList &paths);

} // namespace folioforge
