// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "compress/PlanarImage.h"

#include <cstddef>
#include <exception>
#include <string>

#include <qpdf/Pipeline.hh>

class QPDF;

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

/// Undoes the lossless filters of a stream: `filter` and `parameters` are the values of its Filter
/// and DecodeParms in PDF syntax. Throws Error when the data is damaged or longer than `maxBytes`,
/// so that a small stream cannot claim the machine's memory.
std::string decodeLossless(const std::string &data, const std::string &filter,
                           const std::string &parameters, std::size_t maxBytes);

/// The plane as Flate data whose rows carry PNG predictors (Predictor 15).
std::string encodeFlate(const Plane &plane);

/// Keeps the bytes of every stream that is compressed twice or more as they are when the document
/// is written. Each time may unfold a thousandfold: decoding a few kilobytes would never end.
void keepFilterChains(QPDF &document);

} // namespace folioforge
