// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/InputSource.hh>

#include <QtGlobal>

#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace folioforge {

/// Bytes that come piece by piece, as libqpdf reads them.
class PieceInput : public InputSource {
  public:
    qpdf_offset_t findAndSkipNextEOL() override;
    std::string const &getName() const override { return m_name; }
    qpdf_offset_t tell() override { return m_position; }
    void seek(qpdf_offset_t offset, int whence) override;
    void rewind() override { m_position = 0; }
    size_t read(char *target, size_t length) override;
    void unreadCh(char ch) override;

  protected:
    explicit PieceInput(std::string name)
        : m_name(std::move(name)) {}

    /// The bytes at `position` as far as they are at hand, in `room` or elsewhere; none at the end.
    virtual std::string_view pieceAt(qint64 position, std::span<char> room) = 0;

    qint64 m_end = 0;
    qint64 m_position = 0;

  private:
    std::string m_name;
};

} // namespace folioforge
