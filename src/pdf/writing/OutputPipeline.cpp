// SPDX-License-Identifier: Apache-2.0

#include "pdf/writing/OutputPipeline.h"

#include "files/Checksum.h"
#include "files/OutputFile.h"
#include "image/Parallel.h"

#include <algorithm>
#include <new>
#include <string_view>
#include <utility>

namespace folioforge {

namespace {

/// As much as makes a thread worth its start.
constexpr std::size_t kBlockSize = 1 << 19;

} // namespace

OutputPipeline::OutputPipeline(OutputFile &file)
    : Pipeline("output", nullptr)
    , m_file(file)
    , m_position(file.size()) {
    m_filling.reserve(kBlockSize);
    m_block.reserve(kBlockSize);
}

void OutputPipeline::write(unsigned char const *data, size_t length) {
    std::string_view rest(reinterpret_cast<const char *>(data), length);
    m_position += static_cast<qint64>(length);
    while (!rest.empty()) {
        const std::size_t taken = std::min(rest.size(), kBlockSize - m_filling.size());
        m_filling.append(rest.substr(0, taken));
        rest.remove_prefix(taken);
        if (m_filling.size() == kBlockSize) {
            beginBlock();
        }
    }
}

void OutputPipeline::append(QByteArrayView bytes) {
    write(reinterpret_cast<const unsigned char *>(bytes.data()),
          static_cast<std::size_t>(bytes.size()));
}

void OutputPipeline::beginBlock() {
    wait();
    std::swap(m_filling, m_block);
    m_filling.clear();
    try {
        m_writing = runAsync([this] { writeBlock(); });
    } catch (const std::bad_alloc &) {
        writeBlock();
    }
}

void OutputPipeline::writeBlock() noexcept {
    if (m_failure) {
        return;
    }
    m_checksum = crcWith(m_checksum, {m_block.data(), std::ssize(m_block)});
    try {
        m_file.write(m_block);
    } catch (...) {
        m_failure = std::current_exception();
        m_hasFailed = true;
    }
}

void OutputPipeline::wait() {
    if (m_writing.valid()) {
        m_writing.get();
    }
}

void OutputPipeline::throwFailure() {
    if (m_hasFailed) {
        wait();
        std::rethrow_exception(m_failure);
    }
}

std::uint32_t OutputPipeline::drain() {
    wait();
    std::swap(m_filling, m_block);
    m_filling.clear();
    writeBlock();
    throwFailure();
    return m_checksum;
}

} // namespace folioforge
