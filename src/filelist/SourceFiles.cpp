// SPDX-License-Identifier: Apache-2.0

#include "filelist/SourceFiles.h"

#include "error/Error.h"
#include "files/ReadableLinks.h"
#include "pdf/import/SourceDocument.h"

#include <QFile>

#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

bool isTakenFromFolders(const QString &name) {
    const FileKind kind = fileKind(name);
    return kind == FileKind::Text || kind == FileKind::Image;
}

} // namespace

std::vector<QByteArray> recognisedNames(const QByteArray &folder) {
    std::vector<QByteArray> names;
    std::error_code failure;
    std::filesystem::directory_iterator entry(folder.toStdString(), failure);
    while (!failure && entry != std::filesystem::directory_iterator()) {
        const std::string name = entry->path().filename().string();
        std::error_code unknown;
        if (isTakenFromFolders(QFile::decodeName(name.c_str())) && !entry->is_directory(unknown)) {
            names.push_back(QByteArray::fromStdString(name));
        }
        entry.increment(failure);
    }
    if (failure) {
        throw Error(u"The folder cannot be listed: %1"_s.arg(
            QString::fromLocal8Bit(failure.message().c_str())));
    }
    return names;
}

void addDirectorie(const QString &folder, QStringList &files, ReadableLinks &readableLinks) {
    const QByteArray place = QFile::encodeName(folder);
    try {
        for (const QByteArray &name : recognisedNames(place)) {
            files += readableLinks.pathFor(place + '/' + name);
        }
    } catch (const Error &) {
        return; // A folder that cannot be listed adds nothing.
    }
}

QString sizeText(qint64 bytes) {
    constexpr qint64 kBlock = 4096;
    constexpr qint64 kKilobyte = 1024;
    constexpr qint64 kMaxInKilobytes = 1048575;
    constexpr double kMegabyte = 1048576.0;
    const auto counted = static_cast<qint32>(bytes);
    // The sum wraps as 32-bit numbers do: files of 2 GB and more get the text of what is left.
    const auto padded = static_cast<qint32>(static_cast<quint32>(counted) + (kBlock - 1));
    const auto rounded = static_cast<qint32>(padded / kBlock * kBlock);
    if (rounded <= kKilobyte) {
        return u"4 KB"_s;
    }
    if (rounded <= kMaxInKilobytes) {
        return u"%1 KB"_s.arg(rounded / kKilobyte);
    }
    return u"%1 MB"_s.arg(QString::number(rounded / kMegabyte, 'f', 1));
}

int countPdfPages(const QString &path) {
    const PDFSummary summary = summarizePDF(path);
    if (summary.encrypted) {
        throw Error(u"The document is encrypted"_s);
    }
    return summary.pageCount;
}

Notice badFilesNotice(const QStringList &paths) {
    QStringList lines;
    for (const QString &path : paths) {
        lines += u"    "_s + path;
    }
    return {u"Fail to import following files. They are encrypted or not normal PDF "
            "files:"_s,
            lines.join(u"\r\n"_s).replace(u"%%"_s, u"%"_s)};
}

} // namespace folioforge
