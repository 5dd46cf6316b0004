#include "filelist/StandIns.h"

#include "filelist/FileKind.h"
#include "pdf/TemporaryFolder.h"
#include "text/TextDecoder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace folioforge {

QString StandIns::pathFor(const QByteArray &path) {
    QString readable = QString::fromUtf8(path);
    if (!decodeText(path).isNull()) {
        return readable;
    }
    // A folder for each, so that the link can bear the file's own name.
    const QString folder = m_folder.path() + u'/' + QString::number(m_count++);
    const QString link = folder + u'/' + fittingName(lastPathComponent(readable));
    std::error_code failure;
    const auto target = std::filesystem::absolute(path.toStdString(), failure);
    if (failure || !QDir().mkpath(folder)) {
        return readable;
    }
    std::filesystem::create_symlink(target, QFile::encodeName(link).toStdString(), failure);
    return failure ? readable : link;
}

QString StandIns::pathForReadable(const QString &path) {
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

QStringList StandIns::pathsForReadable(QStringList paths) {
    for (QString &path : paths) {
        path = pathForReadable(path);
    }
    return paths;
}

} // namespace folioforge
