// SPDX-License-Identifier: Apache-2.0

#include "filelist/TextSource.h"

#include "error/Error.h"
#include "files/SourceFile.h"
#include "text/TextDecoder.h"
#include "text/TextEncoding.h"

#include <QFile>

#include <unistd.h>

#include <limits>
#include <new>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

void requireTextSize(const FileVersion &file) {
    if (file.size > std::numeric_limits<int>::max()) {
        throw Error(u"The text is larger than 2 GB"_s);
    }
}

SourceText readWholeText(const QString &path, SystemCalls &calls, const QString &encoding) {
    const SourceFile file = SourceFile::open(path, calls);
    requireTextSize(file.version());
    if (!encoding.isEmpty()) {
        DecodedText decoded = decodeText(file.readAll(), encoding);
        SourceText source{std::move(decoded.text), {}};
        if (!decoded.guess.isEmpty()) {
            source.warnings.push_back({WarningCode::EncodingGuessed,
                                       u"The text is read as %1, a guess"_s.arg(decoded.guess)});
        }
        return source;
    }
    QString text = decodeText(file.readAll());
    if (text.isNull()) {
        return {
            {},
            {{WarningCode::TextNotUtf8, u"The text is not valid UTF-8; its page is left blank"_s}}};
    }
    return {std::move(text), {}};
}

} // namespace

void requireReadableText(const QString &path) {
    requireTextSize(FileVersion::of(path));
    if (::access(QFile::encodeName(path).constData(), R_OK) != 0) {
        throw systemError(u"Cannot open the file"_s);
    }
}

SourceText readTextFile(const QString &path, SystemCalls &calls, const QString &encoding) {
    try {
        return readWholeText(path, calls, encoding);
    } catch (const std::bad_alloc &) {
        throw notEnoughMemory();
    }
}

} // namespace folioforge
