// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/PieceInput.h"
#include "verify/ReadBytes.h"

namespace folioforge {

/// A finished PDF as libqpdf reads it, which may have no name yet.
class WrittenInput final : public PieceInput {
  public:
    WrittenInput(std::string name, qint64 size, ReadBytes readBytes);

  private:
    std::string_view pieceAt(qint64 position, std::span<char> room) override;

    ReadBytes m_readBytes;
    ByteWindow m_window;
};

} // namespace folioforge
