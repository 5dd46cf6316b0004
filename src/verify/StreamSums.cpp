// SPDX-License-Identifier: Apache-2.0

#include "verify/StreamSums.h"

#include "pdf/QpdfErrors.h"

#include <qpdf/Pipeline.hh>
#include <qpdf/QPDF.hh>

#include <algorithm>

namespace folioforge {
namespace {

/// The end of a pipeline: what arrives is summed up.
class SumPipeline final : public Pipeline {
  public:
    SumPipeline()
        : Pipeline("sum", nullptr) {}

    void write(unsigned char const *data, size_t size) override {
        m_checksum.add({reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)});
        m_bytes += static_cast<qint64>(size);
    }
    void finish() override {}
    [[nodiscard]] StreamSum sum() const { return {m_checksum.value(), m_bytes}; }

  private:
    Checksum m_checksum;
    qint64 m_bytes = 0;
};

} // namespace

std::optional<StreamSum> sumOf(const QPDFObjectHandle &stream, Unpacking unpacking) {
    const QPDF *document = stream.getOwningQPDF();
    const std::size_t warnings = document != nullptr ? document->numWarnings() : 0;
    SumPipeline target;
    try {
        if (!unpack(stream, unpacking, target)) {
            return std::nullopt;
        }
    } catch (const std::exception &fault) {
        if (isLackOfMemory(fault)) {
            throw std::bad_alloc();
        }
        return std::nullopt;
    }
    // Compressed data that end too early count for no failure.
    const bool isDamaged = document != nullptr && document->numWarnings() > warnings;
    return isDamaged ? std::nullopt : std::optional(target.sum());
}

std::optional<StreamSum> KnownSums::of(const QPDFObjectHandle &stream) {
    const auto [known, isNew] = m_sums.try_emplace(stream.getObjGen());
    if (isNew) {
        known->second = sumOf(stream, Unpacking::Samples);
    }
    return known->second;
}

StreamSum sumOf(const FileVersion &file, const std::vector<FileSlice> &slices,
                SourceReader &reader) {
    constexpr qint64 kPiece = 1 << 18; // It stays in the processor's cache.
    Checksum checksum;
    qint64 bytes = 0;
    for (const FileSlice &slice : slices) {
        for (qint64 done = 0; done < slice.length; done += kPiece) {
            const qint64 size = std::min(kPiece, slice.length - done);
            const auto piece = reader.view(file, slice.offset + done, size);
            checksum.add({piece.data(), std::ssize(piece)});
            bytes += size;
        }
    }
    return {checksum.value(), bytes};
}

} // namespace folioforge
