// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/Checksum.h"
#include "files/SourceReader.h"
#include "image/PdfImage.h"
#include "verify/Unpacking.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <optional>
#include <vector>

namespace folioforge {

/// Bytes by which the data of two streams are known to be the same.
struct StreamSum {
    quint64 checksum = 0;
    qint64 bytes = 0;

    bool operator==(const StreamSum &) const = default;
};

/// The sum of the data of `stream`; nothing where it is damaged or has a filter that is not undone.
/// Nothing is held in memory but what libqpdf holds.
std::optional<StreamSum> sumOf(const QPDFObjectHandle &stream, Unpacking unpacking);

/// Sums of streams that many others refer to, as profiles of colours are: each is unpacked once.
class KnownSums {
  public:
    /// The sum of `stream` without its lossless filters, as above.
    std::optional<StreamSum> of(const QPDFObjectHandle &stream);

  private:
    std::map<QPDFObjGen, std::optional<StreamSum>> m_sums;
};

/// The sum of slices of a file, read again. Throws Error where it has changed or cannot be read.
StreamSum sumOf(const FileVersion &file, const std::vector<FileSlice> &slices,
                SourceReader &reader);

} // namespace folioforge
