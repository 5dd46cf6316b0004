// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/Pipeline.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <cstddef>
#include <optional>
#include <string>

namespace folioforge {

/// How far the filters of a stream are undone.
enum class Unpacking {
    None,   ///< As it stands in the file; decrypted.
    Rows,   ///< FlateDecode alone, predictors stay.
    Samples ///< All lossless filters.
};

/// Puts the data of `stream` into `target`; false where they are damaged or have a filter that is
/// not undone. What FlateDecode gives has to match its checksum, which libqpdf passes over. Throws
/// what `target` and libqpdf throw.
bool unpack(QPDFObjectHandle stream, Unpacking unpacking, Pipeline &target);

/// The data of `stream` without lossless filters; nothing where that fails or they are longer than
/// `limit` bytes.
std::optional<std::string> unpacked(const QPDFObjectHandle &stream, std::size_t limit);

} // namespace folioforge
