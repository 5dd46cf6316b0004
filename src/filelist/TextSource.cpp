// SPDX-License-Identifier: Apache-2.0

#include "filelist/TextSource.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "files/SourceFile.h"
#include "text/TextDecoder.h"
#include "text/TextEncoding.h"

#include <QFile>

#include <unistd.h>

#include <cerrno>
#include <limits>
#include <new>

namespace folioforge {
namespace {

void requireTextSize(const FileVersion &file) {
    if (file.size > std::numeric_limits<int>::max()) {
        throw Error(Reasons::tr("The text is larger than 2 GB"));
    }
}

SourceText readWholeText(const QString &path, SystemCalls &calls, const QString &encoding) {
    const SourceFile file = SourceFile::open(path, calls);
    requireTextSize(file.version());
    if (!encoding.isEmpty()) {
        DecodedText decoded = decodeText(file.readAll(), encoding);
        SourceText source{std::move(decoded.text), {}};
        if (!decoded.guess.isEmpty()) {
            source.warnings.push_back(
                {WarningCode::EncodingGuessed,
                 Reasons::tr("The text is read as %1, a guess").arg(decoded.guess)});
        }
        return source;
    }
    QString text = decodeText(file.readAll());
    if (text.isNull()) {
        return {{},
                {{WarningCode::TextNotUtf8,
                  Reasons::tr("The text is not valid UTF-8; its page is left blank")}}};
    }
    return {std::move(text), {}};
}

} // namespace

void requireReadableText(const QString &path) {
    requireTextSize(FileVersion::of(path));
    if (::access(QFile::encodeName(path).constData(), R_OK) != 0) {
        const int reason = errno; // Translating may set it.
        throw systemError(Reasons::tr("Cannot open the file"), reason);
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
