// SPDX-License-Identifier: Apache-2.0

#include "pdf/writing/BlockPipeline.h"

#include <algorithm>
#include <string_view>

namespace folioforge {

BlockPipeline::BlockPipeline(const char *name, std::size_t blockSize)
    : Pipeline(name, nullptr)
    , m_blockSize(blockSize) {
    m_block.reserve(blockSize);
}

void BlockPipeline::write(unsigned char const *data, size_t length) {
    std::string_view rest(reinterpret_cast<const char *>(data), length);
    while (!rest.empty()) {
        const std::size_t taken = std::min(rest.size(), m_blockSize - m_block.size());
        m_block.append(rest.substr(0, taken));
        rest.remove_prefix(taken);
        if (m_block.size() == m_blockSize) {
            takeBlock();
        }
    }
}

} // namespace folioforge
