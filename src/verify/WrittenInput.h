// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "verify/ReadBytes.h"

#include <qpdf/InputSource.hh>

#include <QtGlobal>

#include <span>
#include <string>
#include <vector>

namespace folioforge {

/// A finished PDF as libqpdf reads it, which may have no name yet.
class WrittenInput final : public InputSource {
  public:
    WrittenInput(std::string name, qint64 size, ReadBytes readBytes);

    qpdf_offset_t findAndSkipNextEOL() override;
    std::string const &getName() const override { return m_name; }
    qpdf_offset_t tell() override { return m_position; }
    void seek(qpdf_offset_t offset, int whence) override;
    void rewind() override { m_position = 0; }
    size_t read(char *target, size_t length) override;
    void unreadCh(char ch) override;

  private:
    /// The bytes from the position on, as far as they are at hand; none at the end.
    std::span<const char> bytesHere();

    std::string m_name;
    qint64 m_size;
    ReadBytes m_readBytes;
    qint64 m_position = 0;
    std::vector<char>
        m_window; ///< Bytes from m_windowStart on: the library asks for few at a time.
    qint64 m_windowStart = 0;
};

} // namespace folioforge
