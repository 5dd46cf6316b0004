// SPDX-License-Identifier: Apache-2.0

#include "image/formats/LoadedLibrary.h"

#include "error/Error.h"

#include <utility>

namespace folioforge {

LoadedLibrary::LoadedLibrary(const QString &file, QString version, QString refusal)
    : m_library(file)
    , m_version(std::move(version))
    , m_refusal(std::move(refusal)) {
    if (!m_library.load()) {
        fail();
    }
}

QFunctionPointer LoadedLibrary::found(const char *name) {
    const QFunctionPointer function = m_library.resolve(name);
    if (function == nullptr) {
        fail();
    }
    return function;
}

void LoadedLibrary::fail() const {
    throw Error(m_refusal.arg(m_version, m_library.errorString()));
}

} // namespace folioforge
