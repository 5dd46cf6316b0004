#pragma once

#include "files/SourceReader.h"

#include <qpdf/InputSource.hh>

#include <memory>

namespace folioforge {

/// A source PDF as libqpdf reads it. It holds no descriptor and no buffer of its own, so that
/// thousands of them may wait until their streams are written.
class SourceInput final : public InputSource {
  public:
    /// Whether the library is to find the table of objects. Where it does not, it searches the
    /// file for them.
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
    qint64 m_end; ///< Behind the file stand blanks up to here.
    std::string m_name;
    qint64 m_position = 0;
};

} // namespace folioforge
