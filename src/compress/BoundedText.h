#pragma once

#include <exception>
#include <string>

#include <qpdf/Pipeline.hh>

namespace folioforge {

/// What BoundedText throws when more arrives than it may take.
class TooLong : public std::exception {};

/// The end of a libqpdf pipeline that collects what arrives, up to a limit, so that a small
/// compressed stream cannot claim the machine's memory.
class BoundedText : public Pipeline {
  public:
    BoundedText(std::string &text, std::size_t most)
        : Pipeline("bounded text", nullptr)
        , m_text(text)
        , m_most(most) {}
    void write(const unsigned char *data, std::size_t size) override {
        if (size > m_most - m_text.size()) {
            throw TooLong();
        }
        m_text.append(reinterpret_cast<const char *>(data), size);
    }
    void finish() override {}

  private:
    std::string &m_text;
    std::size_t m_most;
};

} // namespace folioforge
