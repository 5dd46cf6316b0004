#include "filelist/TextSource.h"

#include "error/Error.h"
#include "error/Memory.h"
#include "files/SourceReader.h"
#include "text/TextDecoder.h"

#include <QFile>
#include <QFileInfo>

#include <limits>
#include <new>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

void openForReading(QFile &file) {
    if (!file.open(QIODevice::ReadOnly)) {
        throw Error(file.errorString());
    }
}

std::optional<QString> readWholeText(const QString &path) {
    requireReadableFile(path);
    const FileVersion examined = FileVersion::of(path);
    QFile file(path);
    openForReading(file);
    if (file.size() > std::numeric_limits<int>::max()) {
        throw Error(u"The text is larger than 2 GB"_s);
    }
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        throw Error(file.errorString());
    }
    if (FileVersion::of(path) != examined) {
        throw Error(u"The file was changed while it was being read"_s);
    }
    QString text = decodeText(bytes);
    return text.isNull() ? std::nullopt : std::optional(std::move(text));
}

} // namespace

void requireReadableFile(const QString &path) {
    const QFileInfo info(path);
    if (!info.exists()) {
        throw Error(u"No such file or directory"_s);
    }
    if (!info.isFile()) {
        throw Error(u"It is not a regular file"_s);
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
