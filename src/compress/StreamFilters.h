// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "compress/PlanarImage.h"
#include "pdf/BoundedBuffer.h"

#include <cstddef>
#include <string>

namespace folioforge {

/// Undoes the lossless filters of a stream: `filter` and `parameters` are the values of its Filter
/// and DecodeParms in PDF syntax. Throws Error when the data is damaged or longer than `maxBytes`,
/// so that a small stream cannot claim the machine's memory.
std::string decodeLossless(const std::string &data, const std::string &filter,
                           const std::string &parameters, std::size_t maxBytes);

/// The plane as Flate data whose rows carry PNG predictors (Predictor 15).
std::string encodeFlate(const Plane &plane);

} // namespace folioforge
