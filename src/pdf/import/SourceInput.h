// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceReader.h"
#include "pdf/import/PieceInput.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace folioforge {

/// What the library reads before and behind the bytes of a file.
struct AddedBytes {
    std::string before;
    qint64 gap = 0; ///< So many bytes that say nothing, and then
    std::string behind;
};

/// A source PDF as libqpdf reads it. It holds neither a descriptor nor a buffer, so that thousands
/// may wait until their streams are written.
class SourceInput final : public PieceInput {
  public:
    /// The processor time of the calling thread that a search for objects through the whole file
    /// may take, in milliseconds.
    static constexpr qint64 kMaxSearch = 2000;

    SourceInput(FileVersion file, std::shared_ptr<SourceReader> reader, AddedBytes added = {},
                qint64 maxSearch = kMaxSearch);

    qpdf_offset_t findAndSkipNextEOL() override;
    void seek(qpdf_offset_t offset, int whence) override;
    size_t read(char *target, size_t length) override;

  private:
    void limitSearch();
    void clampLengths(qint64 position, std::span<char> piece);
    [[nodiscard]] bool isObjectBuffer(const char *target) const;
    std::string_view pieceAt(qint64 position, std::span<char> target) override;

    FileVersion m_file;
    std::shared_ptr<SourceReader> m_reader;
    AddedBytes m_added;
    qint64 m_front; ///< Where the file begins.
    qint64 m_maxSearch;
    qint64 m_lines = 0;     ///< So far in the search.
    qint64 m_bytesRead = 0; ///< Since the last look at the clock.
    qint64 m_searchEnd = 0; ///< On the thread's clock; 0 before the first line.
};

} // namespace folioforge
