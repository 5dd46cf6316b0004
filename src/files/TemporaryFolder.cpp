// SPDX-License-Identifier: Apache-2.0

#include "files/TemporaryFolder.h"

#include "files/PartFiles.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <utility>

namespace folioforge {

namespace {

/// Qt gives an empty path when TMPDIR names no folder, and files would then be made in the root
/// folder.
QString systemsTemporaryFolder() {
    const QString folder = QDir::tempPath();
    return folder.isEmpty() ? QFile::decodeName(qgetenv("TMPDIR")) : folder;
}

} // namespace

TemporaryFolder::TemporaryFolder()
    : TemporaryFolder(systemsTemporaryFolder()) {}

TemporaryFolder::TemporaryFolder(QString parent)
    : m_parent(std::move(parent)) {}

TemporaryFolder::~TemporaryFolder() {
    if (m_part) {
        std::error_code failure;
        std::filesystem::remove_all(m_part->path(), failure);
    }
}

QString TemporaryFolder::path() {
    // The system may clean its temporary folder while a long run goes on.
    if (m_part && isRemoved(m_descriptor.get())) {
        m_descriptor.close();
        m_part.reset();
    }
    if (!m_part) {
        m_clearing.emplace(m_parent, AbandonedParts::Kinds::FilesAndFolders);
        const std::string parent = QFile::encodeName(m_parent).toStdString();
        int attempts = 16;
        while (attempts > 0 &&
               !make(partPath(parent, QByteArray(kPartFolder.data(), kPartFolder.size())))) {
            --attempts;
        }
    }
    return m_part ? QFile::decodeName(m_part->path().c_str()) : m_parent;
}

bool TemporaryFolder::make(const std::string &path) {
    auto part = std::make_unique<PartFile>(path);
    if (::mkdir(path.c_str(), S_IRWXU) != 0) {
        return false;
    }
    FileDescriptor folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (folder.isOpen() && lockPart(folder.get()) && !isRemoved(folder.get())) {
        m_descriptor = std::move(folder);
        m_part = std::move(part);
        return true;
    }
    if (!folder.isOpen()) {
        ::rmdir(path.c_str());
    } // Else another process took it for abandoned before it was locked.
    return false;
}

} // namespace folioforge
