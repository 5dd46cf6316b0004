// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceReader.h"

#include <qpdf/InputSource.hh>

#include <memory>

namespace folioforge {

/// A source PDF as libqpdf reads it. It holds neither a descriptor nor a buffer, so that thousands
/// may wait until their streams are written.
class SourceInput final : public InputSource {
  public:
    /// Whether the library finds the cross-reference table. When it does not, it searches the file
    /// for objects.
    enum class Table { Shown, Hidden };

    SourceInput(FileVersion file, std::shared_ptr<SourceReader> reader, Table table);

    qpdf_offset_t findAndSkipNextEOL() override;
    std::string const &getName() const override;
    qpdf_offset_t tell() override;
    void seek(qpdf_offset_t offset, int whence) override;
    void rewind() override;
    size_t read(char *target, size_t length) override;
    void unreadCh(char ch) override;

  private:
    FileVersion m_file;
    std::shared_ptr<SourceReader> m_reader;
    qint64 m_end; ///< From the end of the file up to here the library reads blanks.
    std::string m_name;
    qint64 m_position = 0;
};

} // namespace folioforge
