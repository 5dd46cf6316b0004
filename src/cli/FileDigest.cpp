// SPDX-License-Identifier: Apache-2.0

#include "cli/FileDigest.h"

#include "files/FileDescriptor.h"

#include <QCryptographicHash>
#include <QFile>

#include <fcntl.h>

#include <vector>

namespace folioforge {

std::optional<FileDigest> digestOf(const QString &path) {
    // Without waiting, should a pipe have taken the place of the file.
    const FileDescriptor file(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.isOpen()) {
        return std::nullopt;
    }
    QCryptographicHash hash(QCryptographicHash::Sha256);
    FileDigest digest;
    std::vector<char> piece(1 << 18);
    while (const qint64 got = file.readAt(digest.bytes, piece)) {
        if (got < 0) {
            return std::nullopt;
        }
        hash.addData(QByteArrayView(piece.data(), got));
        digest.bytes += got;
    }
    digest.sha256 = hash.result().toHex();
    return digest;
}

} // namespace folioforge
