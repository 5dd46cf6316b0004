#pragma once

#include "pdf/SourceReader.h"

#include <qpdf/InputSource.hh>

#include <memory>

namespace folioforge {

/// A source PDF as libqpdf reads it. It holds no descriptor and no buffer of its own, so that
/// thousands of them may wait until their streams are written.
class SourceInput final : public InputSource {
  public:
    SourceInput(SourceFile file, std::shared_ptr<SourceReader> reader);

    qpdf_offset_t findAndSkipNextEOL() override;
    std::string const &getName() const override;
    qpdf_offset_t tell() override;
    void seek(qpdf_offset_t offset, int whence) override;
    void rewind() override;
    size_t read(char *target, size_t length) override;
    void unreadCh(char ch) override;

  private:
    SourceFile m_file;
    std::shared_ptr<SourceReader> m_reader;
    std::string m_name;
    qint64 m_position = 0;
};

} // namespace folioforge
