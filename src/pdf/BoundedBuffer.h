// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/Pipeline.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <cstddef>
#include <exception>
#include <optional>
#include <string>

namespace folioforge {

/// What BoundedBuffer throws when more arrives than it may take.
class TooLong : public std::exception {};

/// The end of a libqpdf pipeline that collects what arrives, up to a limit, so that a small
/// compressed stream cannot claim the machine's memory.
class BoundedBuffer : public Pipeline {
  public:
    BoundedBuffer(std::string &text, std::size_t maxBytes)
        : Pipeline("bounded text", nullptr)
        , m_text(text)
        , m_maxBytes(maxBytes) {}
    void write(const unsigned char *data, std::size_t size) override {
        if (size > m_maxBytes - m_text.size()) {
            throw TooLong();
        }
        m_text.append(reinterpret_cast<const char *>(data), size);
    }
    void finish() override {}

  private:
    std::string &m_text;
    std::size_t m_maxBytes;
};

/// The data of a stream without its filter; nothing where it is damaged or longer than `maxBytes`,
/// or has several filters, of which each may unfold a thousandfold.
std::optional<std::string> boundedData(QPDFObjectHandle stream, std::size_t maxBytes);

} // namespace folioforge
