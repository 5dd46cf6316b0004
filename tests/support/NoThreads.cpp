// SPDX-License-Identifier: Apache-2.0

#include "support/NoThreads.h"

#include <dlfcn.h>
#include <pthread.h>

#include <atomic>
#include <cerrno>

namespace {

std::atomic<bool> refusing{false};
std::atomic<bool> sparingQt{false};
std::atomic<int> refusals{0};

} // namespace

// Hides the C library's own, for every library of the program.
extern "C" int pthread_create(pthread_t *thread, const pthread_attr_t *attributes,
                              void *(*work)(void *), void *data) {
    const bool isQts = attributes != nullptr; // The C++ library's threads have none.
    if (refusing && !(sparingQt && isQts)) {
        ++refusals;
        return EAGAIN;
    }
    using Create = decltype(&pthread_create);
    static const auto create = reinterpret_cast<Create>(::dlsym(RTLD_NEXT, "pthread_create"));
    return create(thread, attributes, work, data);
}

namespace folioforge::test {

NoThreads::NoThreads(From from) {
    refusals = 0;
    sparingQt = from == From::AllButQt;
    refusing = true;
}

NoThreads::~NoThreads() {
    refusing = false;
}

int NoThreads::refused() const {
    return refusals;
}

} // namespace folioforge::test
