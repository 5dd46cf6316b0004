// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/SourceInput.h"

#include "error/Reasons.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <iterator>
#include <string_view>

#include <time.h>

namespace folioforge {

namespace {

/// What stands again and again where there is nothing: whoever looks for the end of an object or of
/// a stream finds it at once.
constexpr std::string_view kNothing = "endobj ";

/// A number of so many digits fits into 64 bits.
constexpr std::size_t kShort = 18;
constexpr std::string_view kDigits = "0123456789";

bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

/// Whether a number of more digits stands in `piece`.
bool hasLongNumber(std::string_view piece) {
    for (std::size_t i = kShort; i < piece.size(); i += kShort + 1) {
        if (isDigit(piece[i])) {
            const auto first = piece.find_last_not_of(kDigits, i) + 1;
            const auto end = std::min(piece.find_first_not_of(kDigits, i), piece.size());
            if (end - first > kShort) {
                return true;
            }
        }
    }
    return false;
}

/// The processor time of this thread in milliseconds.
qint64 threadTime() {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return time.tv_sec * 1000 + time.tv_nsec / 1'000'000;
}

} // namespace

SourceInput::SourceInput(FileVersion file, std::shared_ptr<SourceReader> reader, AddedBytes added,
                         qint64 maxSearch)
    : PieceInput(file.path.toStdString())
    , m_file(std::move(file))
    , m_reader(std::move(reader))
    , m_added(std::move(added))
    , m_front(static_cast<qint64>(m_added.before.size()))
    , m_maxSearch(maxSearch) {
    m_end = m_front + m_file.size + m_added.gap + static_cast<qint64>(m_added.behind.size());
}

/// The library asks for the ends of lines when it searches the file for objects. Some files keep it
/// busy for minutes.
void SourceInput::limitSearch() {
    constexpr qint64 kLinesBetweenLooks = 1024;
    constexpr qint64 kBytesBetweenLooks = 1 << 20; // It may read many lines for one.
    if (m_lines++ % kLinesBetweenLooks != 0 && m_bytesRead < kBytesBetweenLooks) {
        return;
    }
    m_bytesRead = 0;
    if (m_searchEnd == 0) {
        m_searchEnd = threadTime() + m_maxSearch;
    } else if (threadTime() > m_searchEnd) {
        m_reader->fail(Reasons::tr("The document is too damaged to be repaired"));
    }
}

/// Up to the next border between the file and what is added.
std::string_view SourceInput::pieceAt(qint64 position, std::span<char> target) {
    const auto copied = [&](const std::string &text, qint64 start) {
        const auto from = std::min(static_cast<std::size_t>(start), text.size());
        return std::string_view(target.data(), text.copy(target.data(), target.size(), from));
    };
    if (position < m_front) {
        return copied(m_added.before, position);
    }
    position -= m_front;
    if (position < m_file.size) {
        return {target.data(), m_reader->read(m_file, position, target)};
    }
    position -= m_file.size;
    if (position >= m_added.gap) {
        return copied(m_added.behind, position - m_added.gap);
    }
    const auto size = std::min<qint64>(m_added.gap - position, std::ssize(target));
    for (qint64 i = 0; i < size; ++i) {
        target[i] = kNothing[static_cast<std::size_t>(position + i) % kNothing.size()];
    }
    return {target.data(), static_cast<std::size_t>(size)};
}

/// A search begins at the first byte. What was done before it, perhaps on another thread, takes
/// nothing of its time.
void SourceInput::seek(qpdf_offset_t offset, int whence) {
    if (offset == 0 && whence == SEEK_SET) {
        m_lines = 0;
        m_searchEnd = 0;
    }
    PieceInput::seek(offset, whence);
}

qpdf_offset_t SourceInput::findAndSkipNextEOL() {
    limitSearch();
    return PieceInput::findAndSkipNextEOL();
}

/// Writes 0 for each length of a stream in `piece`, which begins at `position`, that has too many
/// digits. The library gives up an object with a number beyond 64 bits; a length that is too short
/// it finds out.
void SourceInput::clampLengths(qint64 position, std::span<char> piece) {
    constexpr std::string_view kKey = "/Length";
    constexpr std::string_view kBefore{" \t\r\n\f\0+-0", 9};
    constexpr qint64 kAround = 64;
    if (!hasLongNumber({piece.data(), piece.size()})) {
        return;
    }
    const qint64 start = std::max(position - kAround, m_front);
    std::string bytes(piece.size() + kAround, '\0');
    const std::string_view text = pieceAt(start, bytes);
    for (auto at = text.find(kKey); at != std::string_view::npos; at = text.find(kKey, at + 1)) {
        const auto blank = at + kKey.size();
        const auto number = std::min(text.find_first_not_of(kBefore, blank), text.size());
        const auto end = std::min(text.find_first_not_of(kDigits, number), text.size());
        if (number == blank || end - number <= kShort) {
            continue;
        }
        const auto inPiece = [&](std::size_t i) {
            const qint64 index = start + static_cast<qint64>(i) - position;
            return piece.begin() + std::clamp<qint64>(index, 0, std::ssize(piece));
        };
        std::fill(inPiece(number), inPiece(end), '0');
    }
}

/// Whether the library reads an object and not the data of a stream: it has a buffer for that.
bool SourceInput::isObjectBuffer(const char *target) const {
    const auto *self = reinterpret_cast<const char *>(this);
    return std::greater_equal<>()(target, self) && std::less<>()(target, self + sizeof(*this));
}

size_t SourceInput::read(char *target, size_t length) {
    size_t got = PieceInput::read(target, length);
    m_bytesRead += static_cast<qint64>(got);
    if (got == 0 && length > 0) {
        // The library takes the end of the file from here.
        last_offset = std::min(m_position, m_end);
    }
    if (isObjectBuffer(target)) {
        // A number at the end is read again when the next piece begins, and then as a whole.
        size_t end = got;
        while (end > 0 && isDigit(target[end - 1])) {
            --end;
        }
        if (end > 0) {
            m_position -= static_cast<qint64>(got - end);
            got = end;
        }
        clampLengths(last_offset, {target, got});
    }
    return got;
}

} // namespace folioforge
