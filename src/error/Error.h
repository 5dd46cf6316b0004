// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Reasons.h"

#include <QString>

#include <exception>
#include <utility>

namespace folioforge {

/// Why a file cannot be read, decoded or written, in words for the user.
///
/// The exceptions and codes of the libraries become an Error where they are called. The conversion
/// catches it for each entry; the fronts see none.
class Error : public std::exception {
  public:
    explicit Error(QString reason)
        : m_reason(std::move(reason))
        , m_bytes(m_reason.toUtf8()) {}

    /// The reason as a sentence without the file's name and without a full stop.
    [[nodiscard]] const QString &reason() const noexcept { return m_reason; }
    [[nodiscard]] const char *what() const noexcept override { return m_bytes.constData(); }

  private:
    QString m_reason;
    QByteArray m_bytes;
};

/// The Error for std::bad_alloc.
inline Error notEnoughMemory() {
    return Error(Reasons::tr("There is not enough memory"));
}

/// The Error of what a stop ends.
inline Error conversionStopped() {
    return Error(Reasons::tr("The conversion was stopped"));
}

} // namespace folioforge
