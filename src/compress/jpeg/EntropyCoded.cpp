#include "compress/jpeg/EntropyCoded.h"

#include <cstring>

namespace folioforge {

EntropyCoded::EntropyCoded(std::span<const std::uint8_t> data, std::size_t padding)
    : m_rest(data)
    , m_padding(padding) {
    m_bytes.reserve(data.size() + padding);
}

bool EntropyCoded::next() {
    constexpr std::uint8_t kMark = 0xff;
    m_bytes.clear();
    for (;;) {
        if (m_rest.size() < 2) {
            return false;
        }
        const std::uint8_t *start = m_rest.data();
        const auto *mark =
            static_cast<const std::uint8_t *>(std::memchr(start, kMark, m_rest.size() - 1));
        if (!mark) {
            return false;
        }
        const std::uint8_t code = mark[1];
        const bool isStuffed = code == 0;
        m_bytes.insert(m_bytes.end(), start, mark + (isStuffed ? 1 : 0));
        m_rest = m_rest.subspan(static_cast<std::size_t>(mark + 2 - start));
        if (!isStuffed) {
            m_size = m_bytes.size();
            m_bytes.resize(m_size + m_padding);
            m_marker = code;
            return true;
        }
    }
}

} // namespace folioforge
