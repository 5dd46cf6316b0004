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
/// the file system's order, hidden ones too. PDF files inside a folder are not taken, and neither
/// is a folder that bears a file's name. Throws Error where the folder cannot be listed to its end.
std::vector<QByteArray> recognisedNames(const QByteArray &folder);

/// Appends to `files` the paths ("folder/name", or their stand-ins) of the text and image files of
/// `folder` that recognisedNames() gives; nothing where it cannot be listed.
void addDirectorie(const QString &folder, QStringList &files, ReadableLinks &readableLinks);

/// Size text of a file of `bytes` bytes, taken as a signed 32-bit number and rounded up to whole
/// blocks of 4096: "4 KB", "%d KB" or "%0.1f MB".
QString sizeText(qint64 bytes);

/// Whether the PDF at `path` may enter the list: it opens as a PDF and is not encrypted. The reason
/// of a refusal goes to `reason` where that is given.
bool isAcceptablePdf(const QString &path, QString *reason = nullptr);

/// The one alert for the PDF files that were refused, in order, one a line. The paths are read as a
/// format string that has no arguments: "%%" becomes "%", and a conversion, finding no argument,
/// stays as it stands.
Notice badFilesNotice(const QStringList &paths);

} // namespace folioforge
