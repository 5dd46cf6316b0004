#include "filelist/TextSource.h"

#include "error/Error.h"
#include "files/SourceFile.h"
#include "text/TextDecoder.h"

#include <limits>
#include <new>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

std::optional<QString> readWholeText(const QString &path) {
    const SourceFile file = SourceFile::open(path);
    if (file.version().size > std::numeric_limits<int>::max()) {
        throw Error(u"The text is larger than 2 GB"_s);
    }
    const QByteArray bytes = file.readAll();
    QString text = decodeText(bytes);
    return text.isNull() ? std::nullopt : std::optional(std::move(text));
}

} // namespace

std::optional<QString> readTextFile(const QString &path) {
    try {
        return readWholeText(path);
    } catch (const std::bad_alloc &) {
        throw notEnoughMemory();
    }
}

} // namespace folioforge
