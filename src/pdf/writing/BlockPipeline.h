// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/Pipeline.hh>

#include <cstddef>
#include <string>

namespace folioforge {

/// A pipeline that gathers what comes into blocks of one size.
class BlockPipeline : public Pipeline {
  public:
    void write(unsigned char const *data, size_t length) final;
    void finish() final {}

  protected:
    BlockPipeline(const char *name, std::size_t blockSize);

    /// Empties the block, which is full.
    virtual void takeBlock() = 0;

    std::string m_block; ///< Its memory is taken at once, since the library hides what is thrown.

  private:
    std::size_t m_blockSize;
};

} // namespace folioforge
