// SPDX-License-Identifier: Apache-2.0

#include "filelist/TextSource.h"

#include "error/Error.h"
#include "error/Reasons.h"
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

SourceText inEncoding(const SourceFile &file, const QString &encoding) {
    DecodedText decoded = decodeText(file.readAll(), encoding);
    if (decoded.guess.isEmpty()) {
        return SourceText(std::move(decoded.text));
    }
    return SourceText(std::move(decoded.text),
                      {{WarningCode::EncodingGuessed,
                        Reasons::tr("The text is read as %1, a guess").arg(decoded.guess)}});
}

/// What `read` gives; what it throws where memory is short becomes an Error.
auto withMemory(const auto &read) {
    try {
        return read();
    } catch (const std::bad_alloc &) {
        throw notEnoughMemory();
    }
}

} // namespace

void requireReadableText(const QString &path) {
    requireTextSize(FileVersion::of(path));
    if (::access(QFile::encodeName(path).constData(), R_OK) != 0) {
        const int reason = errno; // Translating may set it.
        throw systemError(Reasons::tr("Cannot open the file"), reason);
    }
}

SourceText SourceText::open(const QString &path, SystemCalls &calls, const QString &encoding) {
    return withMemory([&] {
        SourceFile file = SourceFile::open(path, calls);
        requireTextSize(file.version());
        return encoding.isEmpty() ? inUtf8(LinePieces(std::move(file)))
                                  : inEncoding(file, encoding);
    });
}

/// All of the file is looked at before the first piece is given: bytes that are not UTF-8 give no
/// text at all.
SourceText SourceText::inUtf8(LinePieces lines) {
    const QByteArray first = lines.next();
    const bool isWhole = lines.isAtEnd();
    bool isUtf8 = first.isValidUtf8();
    while (isUtf8 && !lines.isAtEnd()) {
        isUtf8 = lines.next().isValidUtf8();
    }
    if (!isUtf8) {
        return SourceText({},
                          {{WarningCode::TextNotUtf8,
                            Reasons::tr("The text is not valid UTF-8; its page is left blank")}});
    }
    if (isWhole) {
        return SourceText(decodeText(first));
    }
    lines.rewind();
    return SourceText(std::move(lines));
}

QStringView SourceText::next() {
    if (!m_lines) {
        m_given = std::exchange(m_text, {});
        return m_given;
    }
    return withMemory([&]() -> QStringView {
        const bool isFirst = m_lines->isAtBegin();
        const QByteArray bytes = m_lines->next();
        m_given = isFirst ? decodeText(bytes) : decodeRest(bytes);
        if (m_given.isNull()) {
            throwFileChanged(m_lines->file().version().path); // It was UTF-8 before.
        }
        return m_given;
    });
}

QString SourceText::rest() {
    if (!m_lines) {
        return std::exchange(m_text, {});
    }
    return withMemory([&] {
        QString all;
        all.reserve(m_lines->file().version().size);
        for (QStringView piece = next(); !piece.isEmpty(); piece = next()) {
            all += piece;
        }
        return all;
    });
}

} // namespace folioforge
