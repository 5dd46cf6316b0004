#include "filelist/TextSource.h"

#include "error/Error.h"
#include "error/Memory.h"
#include "files/SourceReader.h"
#include "text/TextDecoder.h"

#include <QFile>
#include <QFileInfo>

#include <limits>
#include <new>

namespace folioforge {
namespace {

void openForReading(QFile &file) {
    if (!file.open(QIODevice::ReadOnly)) {
        throw Error(file.errorString());
    }
}

std::optional<QString> readWholeText(const QString &path) {
    requireReadableFile(path);
    const SourceFile examined = SourceFile::examine(path);
    QFile file(path);
    openForReading(file);
    if (file.size() > std::numeric_limits<int>::max()) {
        throw Error(QStringLiteral("The text is larger than 2 GB"));
    }
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        throw Error(file.errorString());
    }
    if (SourceFile::examine(path) != examined) {
        throw Error(QStringLiteral("The file was changed while it was being read"));
    }
    QString text = decodeText(bytes);
    return text.isNull() ? std::nullopt : std::optional(std::move(text));
}

} // namespace

void requireReadableFile(const QString &path) {
    const QFileInfo info(path);
    if (!info.exists()) {
        throw Error(QStringLiteral("No such file or directory"));
    }
    if (!info.isFile()) {
        throw Error(QStringLiteral("It is not a regular file"));
    }
    QFile file(path);
    openForReading(file);
}

std::optional<QString> readTextFile(const QString &path) {
    try {
        return readWholeText(path);
    } catch (const std::bad_alloc &) {
        throw notEnoughMemory();
    }
}

} // namespace folioforge
