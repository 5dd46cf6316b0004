// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace folioforge::test {

/// What a program may take; 0 leaves a resource as it is.
struct Limits {
    qint64 addressSpace = 2LL << 30; ///< Bytes; not for AddressSanitizer, which takes terabytes.
    int descriptors = 0;
    qint64 fileSize = 0; ///< Bytes.
    int processorSeconds = 120;
};

/// How a program ended and what it took.
struct LimitedRun {
    int exitCode = -1; ///< -1 where a signal ended it.
    QByteArray out;
    QByteArray err;
    double processorSeconds = 0;
    qint64 peakBytes = 0; ///< The most memory that was resident at once; 0 where nobody tells.
};

/// Runs `program` with `arguments` to its end within `limits`.
LimitedRun runLimited(const QString &program, const QStringList &arguments,
                      const Limits &limits = {});

} // namespace folioforge::test
