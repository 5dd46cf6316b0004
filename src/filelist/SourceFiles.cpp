// SPDX-License-Identifier: Apache-2.0

#include "filelist/SourceFiles.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "files/ReadableLinks.h"
#include "pdf/import/SourceDocument.h"

#include <QCoreApplication>
#include <QFile>

#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// "1 folder", "2 folders"; nothing of none.
QStringList counted(std::size_t count, const char *one, const char *several) {
    if (count == 0) {
        return {};
    }
    return {count == 1 ? Reasons::tr(one) : Reasons::tr(several, nullptr, static_cast<int>(count))};
}

void count(const std::filesystem::directory_entry &entry, FurtherTypes further,
           FolderEntries &found) {
    const std::string name = entry.path().filename().string();
    const FileKind kind = fileKind(QFile::decodeName(name.c_str()), further);
    std::error_code unknown;
    const bool isFolder = entry.is_directory(unknown);
    const bool isImage = kind == FileKind::Image || kind == FileKind::FurtherImage;
    if (!isFolder && (kind == FileKind::Text || isImage)) {
        found.names.push_back(QByteArray::fromStdString(name));
    } else if (!name.starts_with('.')) {
        if (isFolder || kind == FileKind::Pdf) {
            (isFolder ? found.folders : found.pdfs).push_back(QByteArray::fromStdString(name));
        } else {
            ++found.others;
        }
    }
}

} // namespace

Warnings FolderEntries::warnings() const {
    const QStringList left = counted(pdfs.size(), QT_TRANSLATE_NOOP("Reasons", "1 PDF"),
                                     QT_TRANSLATE_N_NOOP("Reasons", "%n PDFs")) +
                             counted(folders.size(), QT_TRANSLATE_NOOP("Reasons", "1 folder"),
                                     QT_TRANSLATE_N_NOOP("Reasons", "%n folders")) +
                             counted(static_cast<std::size_t>(others),
                                     QT_TRANSLATE_NOOP("Reasons", "1 file of another type"),
                                     QT_TRANSLATE_N_NOOP("Reasons", "%n files of other types"));
    if (left.isEmpty()) {
        return {};
    }
    return {
        {WarningCode::FolderEntriesLeft, Reasons::tr("Left out: %1").arg(Reasons::listed(left))}};
}

FolderEntries listFolder(const QByteArray &folder, FurtherTypes further) {
    FolderEntries found;
    std::error_code failure;
    std::filesystem::directory_iterator entry(folder.toStdString(), failure);
    while (!failure && entry != std::filesystem::directory_iterator()) {
        count(*entry, further, found);
        entry.increment(failure);
    }
    if (failure) {
        throw Error(Reasons::tr("The folder cannot be listed: %1")
                        .arg(QString::fromLocal8Bit(failure.message().c_str())));
    }
    return found;
}

void addDirectorie(const QString &folder, QStringList &files, ReadableLinks &readableLinks) {
    const QByteArray place = QFile::encodeName(folder);
    try {
        for (const QByteArray &name : listFolder(place).names) {
            if (isListed(fileKind(QFile::decodeName(name)))) {
                files += readableLinks.pathFor(place + '/' + name);
            }
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

PDFSummary summarizeOpenPdf(const QString &path) {
    const PDFSummary summary = summarizePDF(path);
    if (summary.encrypted) {
        throw encryptedDocument();
    }
    return summary;
}

Notice badFilesNotice(const QStringList &paths) {
    QStringList lines;
    for (const QString &path : paths) {
        lines += u"    "_s + path;
    }
    return {QCoreApplication::translate(
                "SourceFiles",
                "Fail to import following files. They are encrypted or not normal PDF files:"),
            lines.join(u"\r\n"_s).replace(u"%%"_s, u"%"_s)};
}

} // namespace folioforge
