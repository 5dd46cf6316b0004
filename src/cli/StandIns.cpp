#include "cli/StandIns.h"

#include "filelist/FileKind.h"
#include "text/TextDecoder.h"

#include <QDir>
#include <QFile>

#include <filesystem>

namespace folioforge {

QString StandIns::pathFor(const QByteArray &path) {
    QString readable = QString::fromUtf8(path);
    if (!decodeText(path).isNull()) {
        return readable;
    }
    if (!m_folder) {
        m_folder = std::make_unique<QTemporaryDir>();
    }
    // A folder for each, so that the link can bear the file's own name.
    const QString folder = m_folder->filePath(QString::number(m_count++));
    const QString link = folder + u'/' + lastPathComponent(readable);
    std::error_code failure;
    const auto target = std::filesystem::absolute(path.toStdString(), failure);
    if (failure || !QDir().mkpath(folder)) {
        return readable;
    }
    std::filesystem::create_symlink(target, QFile::encodeName(link).toStdString(), failure);
    return failure ? readable : link;
}

} // namespace folioforge
