// SPDX-License-Identifier: Apache-2.0

#include "pdf/writing/OutputPipeline.h"

#include "files/Checksum.h"
#include "files/OutputFile.h"
#include "image/Parallel.h"

#include <new>
#include <utility>

namespace folioforge {

namespace {

/// As much as makes a thread worth its start.
constexpr std::size_t kBlockSize = 1 << 19;

} // namespace

OutputPipeline::OutputPipeline(OutputFile &file)
    : BlockPipeline("output", kBlockSize)
    , m_file(file)
    , m_blockStart(file.size()) {
    m_written.reserve(kBlockSize);
}

void OutputPipeline::append(QByteArrayView bytes) {
    write(reinterpret_cast<const unsigned char *>(bytes.data()),
          static_cast<std::size_t>(bytes.size()));
}

void OutputPipeline::takeBlock() {
    beginNext();
    try {
        m_writing = runAsync([this] { writeBlock(); });
    } catch (const std::bad_alloc &) {
        writeBlock();
    }
}

/// Makes the block the one that is being written, once that before it is.
void OutputPipeline::beginNext() {
    wait();
    m_blockStart = position();
    std::swap(m_block, m_written);
    m_block.clear();
}

void OutputPipeline::writeBlock() noexcept {
    if (m_failure) {
        return;
    }
    m_checksum = crcWith(m_checksum, {m_written.data(), std::ssize(m_written)});
    try {
        m_file.write(m_written);
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
    beginNext();
    writeBlock();
    throwFailure();
    return m_checksum;
}

} // namespace folioforge
