// SPDX-License-Identifier: Apache-2.0

#include "pdf/BoundedBuffer.h"

namespace folioforge {

std::optional<std::string> boundedData(QPDFObjectHandle stream, std::size_t maxBytes) {
    auto filters = stream.getDict().getKey("/Filter");
    if (filters.isArray() && filters.getArrayNItems() > 1) {
        return std::nullopt;
    }
    std::string data;
    BoundedBuffer collect(data, maxBytes);
    const bool whole =
        stream.pipeStreamData(&collect, nullptr, 0, qpdf_dl_generalized, true, false);
    return whole ? std::optional(std::move(data)) : std::nullopt;
}

} // namespace folioforge
