// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtGlobal>

#include <cstddef>
#include <functional>
#include <iterator>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace folioforge {

/// Reads from byte `offset` of a file on until `target` is full or the file ends; returns the
/// number of bytes. Several threads call it at once, so that the file has to be finished. Throws
/// Error.
using ReadBytes = std::function<qint64(qint64 offset, std::span<char> target)>;

/// The same bytes in windows, for those who need few at a time.
class ByteWindow {
  public:
    ByteWindow(ReadBytes readBytes, std::size_t size)
        : m_readBytes(std::move(readBytes))
        , m_size(size) {}

    /// The bytes from `offset` on that are at hand; none at the end of the file. Throws Error.
    std::string_view at(qint64 offset) {
        if (offset < m_start || offset >= m_start + std::ssize(m_window)) {
            m_start = offset;
            m_window.resize(m_size);
            m_window.resize(static_cast<std::size_t>(m_readBytes(offset, m_window)));
        }
        return std::string_view(m_window.data(), m_window.size())
            .substr(static_cast<std::size_t>(offset - m_start));
    }

  private:
    ReadBytes m_readBytes;
    std::size_t m_size;
    qint64 m_start = 0;
    std::vector<char> m_window;
};

} // namespace folioforge
