#pragma once

namespace folioforge::test {

/// While it lives, the system gives the C++ library no further thread: the program that uses this
/// stands before the C library where threads are made.
class NoThreads {
  public:
    NoThreads();
    ~NoThreads();
    NoThreads(const NoThreads &) = delete;
    NoThreads &operator=(const NoThreads &) = delete;

    /// How many threads were asked for, in vain.
    [[nodiscard]] int refused() const;
};

} // namespace folioforge::test
