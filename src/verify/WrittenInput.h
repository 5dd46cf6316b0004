// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/PieceInput.h"
#include "verify/ReadBytes.h"

#include <vector>

namespace folioforge {

/// A finished PDF as libqpdf reads it, which may have no name yet.
class WrittenInput final : public PieceInput {
  public:
    WrittenInput(std::string name, qint64 size, ReadBytes readBytes);

  private:
    std::string_view pieceAt(qint64 position, std::span<char> room) override;

    ReadBytes m_readBytes;
    std::vector<char>
        m_window; ///< Bytes from m_windowStart on: the library asks for few at a time.
    qint64 m_windowStart = 0;
};

} // namespace folioforge
