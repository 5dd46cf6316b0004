// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceReader.h"

#include <qpdf/InputSource.hh>

#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace folioforge {

/// A source PDF as libqpdf reads it. It holds neither a descriptor nor a buffer, so that thousands
/// may wait until their streams are written.
class SourceInput final : public InputSource {
  public:
    /// Whether the library finds the cross-reference table. When it does not, it searches the file
    /// for objects.
    enum class Table { Shown, Hidden };

    /// The processor time of the calling thread that the search may take, in milliseconds.
    static constexpr qint64 kMaxSearch = 2000;

    /// With a hidden table the library reads `trailer` behind the last byte of the file.
    SourceInput(FileVersion file, std::shared_ptr<SourceReader> reader, Table table,
                const std::string &trailer = {});

    qpdf_offset_t findAndSkipNextEOL() override;
    std::string const &getName() const override;
    qpdf_offset_t tell() override;
    void seek(qpdf_offset_t offset, int whence) override;
    void rewind() override;
    size_t read(char *target, size_t length) override;
    void unreadCh(char ch) override;

  private:
    void limitSearch();
    void clampLengths(qint64 position, std::span<char> piece);
    [[nodiscard]] bool isObjectBuffer(const char *target) const;
    [[nodiscard]] std::string_view pieceAt(qint64 position, std::span<char> target);

    FileVersion m_file;
    std::shared_ptr<SourceReader> m_reader;
    qint64 m_front;     ///< So many blanks the library reads before the file,
    std::string m_tail; ///< and this behind it,
    qint64 m_end;       ///< up to here.
    std::string m_name;
    qint64 m_position = 0;
    qint64 m_lines = 0;     ///< So far in the search.
    qint64 m_searchEnd = 0; ///< On the thread's clock; 0 before the search.
};

} // namespace folioforge
