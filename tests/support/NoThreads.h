// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace folioforge::test {

/// While it lives, the system gives this process no further thread: the program that uses this
/// stands before the C library where threads are made.
class NoThreads {
  public:
    /// Of whom threads are kept.
    enum class From {
        Everybody,
        AllButQt, ///< Whose painting waits for threads for ever.
    };

    explicit NoThreads(From from = From::Everybody);
    ~NoThreads();
    NoThreads(const NoThreads &) = delete;
    NoThreads &operator=(const NoThreads &) = delete;

    /// How many threads were asked for, in vain.
    [[nodiscard]] int refused() const;
};

} // namespace folioforge::test
