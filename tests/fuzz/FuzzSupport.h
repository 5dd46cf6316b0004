// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Error.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <span>

/// Begins the function that is a fuzz target: FUZZ_TARGET(PdfMerge) { ... }, with the input in
/// `bytes`.
#define FUZZ_TARGET(name)                                                                          \
    namespace folioforge::fuzz {                                                                   \
    void fuzz##name(Bytes bytes);                                                                  \
    }                                                                                              \
    void folioforge::fuzz::fuzz##name(Bytes bytes)

namespace folioforge::fuzz {

using Bytes = std::span<const std::uint8_t>;

/// Ends the program, which the fuzzer counts as a finding, unless `held`.
void require(bool held);

/// From now on every message that Qt would print is a finding: files of strangers must not fill
/// anybody's log.
void refuseMessages();

/// Runs `work`; whether it threw Error, which must give a reason.
template<typename Work> bool refuses(const Work &work) {
    try {
        work();
        return false;
    } catch (const Error &error) {
        require(!error.reason().isEmpty());
        return true;
    }
}

/// A file of these bytes that never touches the disk, under a name of its own with `extension`.
class MemoryFile {
  public:
    MemoryFile(const QString &extension, Bytes bytes);
    ~MemoryFile();
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    [[nodiscard]] const QString &path() const { return m_path; }

  private:
    int m_descriptor;
    QString m_path;
};

/// The path of NAME in a folder that is this process's alone, where no file of that name stands.
QString freshPath(const QString &name);

/// Reads numbers off the front of an input, zeros behind its end.
class InputReader {
  public:
    explicit InputReader(Bytes bytes)
        : m_rest(bytes) {}

    std::uint8_t byte();
    std::uint16_t word();
    [[nodiscard]] QByteArray rest() const;

  private:
    Bytes m_rest;
};

} // namespace folioforge::fuzz
