// SPDX-License-Identifier: Apache-2.0

#include "files/ReadableLinks.h"

#include "files/PathNames.h"
#include "files/TemporaryFolder.h"

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

namespace folioforge {

ReadableLinks::~ReadableLinks() {
    for (const PartFile &part : m_parts) {
        std::error_code failure;
        std::filesystem::remove(part.path(), failure);
    }
}

QString ReadableLinks::pathFor(const QByteArray &path) {
    if (path.isValidUtf8()) {
        return QFile::decodeName(path); // On macOS with the accents in their letters, as all paths.
    }
    QString readable = QString::fromUtf8(path);
    std::error_code failure;
    const auto target = std::filesystem::absolute(path.toStdString(), failure);
    const QString link =
        failure ? QString()
                : linkTo(QByteArray::fromStdString(target.string()), lastPathComponent(readable));
    return link.isEmpty() ? readable : link;
}

QString ReadableLinks::linkTo(const QByteArray &target, const QString &name) {
    // Each link gets a folder of its own, so that it can have the file's name.
    const QString folder = m_folder.path() + u'/' + QString::number(m_count++);
    QString link = folder + u'/' + fittingName(name);
    return makeFolder(folder) && makeLink(link, target.toStdString()) ? link : QString();
}

// The path is known to a signal handler before there is anything to remove.

bool ReadableLinks::makeFolder(const QString &path) {
    const PartFile &part = m_parts.emplace_front(QFile::encodeName(path).toStdString());
    return keepIf(::mkdir(part.path().c_str(), S_IRWXU) == 0);
}

bool ReadableLinks::makeLink(const QString &path, const std::string &target) {
    const PartFile &part = m_parts.emplace_front(QFile::encodeName(path).toStdString());
    return keepIf(::symlink(target.c_str(), part.path().c_str()) == 0);
}

bool ReadableLinks::keepIf(bool made) {
    if (!made) {
        m_parts.pop_front();
    }
    return made;
}

QString ReadableLinks::pathForReadable(const QString &path) {
    if (!path.contains(QChar::ReplacementCharacter) || QFileInfo::exists(path)) {
        return path;
    }
    const QString wanted = lastPathComponent(path);
    const QByteArray folder = QFile::encodeName(QFileInfo(path).path());
    std::error_code failure;
    std::filesystem::directory_iterator entry(folder.toStdString(), failure);
    while (!failure && entry != std::filesystem::directory_iterator()) {
        const std::string found = entry->path().string();
        if (lastPathComponent(QString::fromUtf8(found)) == wanted) {
            return pathFor(QByteArray::fromStdString(found));
        }
        entry.increment(failure);
    }
    return path;
}

QStringList ReadableLinks::pathsForReadable(QStringList paths) {
    for (QString &path : paths) {
        path = pathForReadable(path);
    }
    return paths;
}

} // namespace folioforge
