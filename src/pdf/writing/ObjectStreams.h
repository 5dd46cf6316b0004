// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/Deflate.h"

#include <QByteArray>

#include <array>
#include <future>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace folioforge {

class CrossReferences;
class OutputPipeline;
class StreamCipher;

/// Writes objects as text into object streams (ISO 32000-1, 7.5.7), which another core compresses.
class ObjectStreams {
  public:
    /// What is alike stands in streams of its own: objects of any kind, and structure elements and
    /// lists of them, of which a document may have more than memory has room for as objects.
    enum Kind { Objects, Elements, Lists };

    /// Streams go to `file`, and the places of objects to `references`. A null `cipher` means none.
    ObjectStreams(OutputPipeline &file, CrossReferences &references, const StreamCipher *cipher);

    /// A number that no object has.
    int newNumber();
    /// Adds an object under a new number, or in place of one that was added before.
    void add(Kind kind, int number, std::string_view object);
    /// Writes what is left.
    void finish();

  private:
    struct Stream {
        Kind kind = Objects;
        int number = 0;
        int count = 0;       ///< Of its objects.
        std::string places;  ///< The number and the place of each, in rows.
        std::string objects; ///< In rows.
    };
    /// A stream as it stands in the file.
    struct Packed {
        int number = 0;
        QByteArray object;
    };
    /// Compresses streams, one at a time.
    class Packer {
      public:
        explicit Packer(const StreamCipher *cipher)
            : m_cipher(cipher) {}

        std::vector<Packed> packed(const std::vector<Stream> &streams);

      private:
        QByteArray packed(const Stream &stream);

        const StreamCipher *m_cipher;
        std::optional<Deflater> m_full;    ///< For objects.
        std::optional<Deflater> m_fastest; ///< For all else.
    };

    void endStream(Kind kind);
    void pack();
    void writePacked();
    void write(const std::vector<Packed> &streams);

    OutputPipeline &m_file;
    CrossReferences &m_references;
    Packer m_packer;                           ///< Used by one job at a time.
    std::array<Stream, 3> m_streams;           ///< That are being filled, by kind.
    std::vector<Stream> m_ended;               ///< That are to be compressed next.
    std::future<std::vector<Packed>> m_packed; ///< A job over those before them, if any.
};

} // namespace folioforge
