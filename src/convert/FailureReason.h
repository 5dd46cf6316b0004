// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Error.h"

#include <QString>

#include <exception>
#include <new>

namespace folioforge {

/// Why `step` failed, whatever the engine threw; empty where it did not.
template<typename Step> QString reasonOfFailure(Step &&step) {
    try {
        step();
        return {};
    } catch (const Error &error) {
        return error.reason();
    } catch (const std::bad_alloc &) {
        return notEnoughMemory().reason();
    } catch (const std::exception &failure) {
        return QString::fromLocal8Bit(failure.what());
    }
}

} // namespace folioforge
