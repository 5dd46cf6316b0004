// SPDX-License-Identifier: Apache-2.0

#include "cli/Manifest.h"

#include "cli/Report.h"
#include "convert/OutputPlan.h"
#include "error/Error.h"
#include "files/OutputFile.h"
#include "pdf/DocumentInfo.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <span>
#include <system_error>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// A line as sha256sum writes it: with a backslash in front where the name has signs that would
/// break the line.
QByteArray checksumLine(const QString &name, const FileDigest &digest) {
    QByteArray bytes = QFile::encodeName(name);
    const bool isEscaped = bytes.contains('\\') || bytes.contains('\n') || bytes.contains('\r');
    bytes.replace('\\', "\\\\").replace('\n', "\\n").replace('\r', "\\r");
    return (isEscaped ? "\\" : "") + digest.sha256 + "  " + bytes + '\n';
}

/// Whether others find a file under the name of an input: a pipe holds nothing twice, and the
/// descriptors of this process are theirs no more.
bool leadsToFile(const QString &name) {
    return name != u"-" && !name.startsWith(u"/dev/") && QFileInfo(name).isFile();
}

/// Whether two paths lead to one file, or would.
bool areOne(const QString &one, const QString &other) {
    const QFileInfo a(one);
    const QFileInfo b(other);
    if (a.exists() && b.exists()) {
        std::error_code unknown;
        return std::filesystem::equivalent(QFile::encodeName(one).toStdString(),
                                           QFile::encodeName(other).toStdString(), unknown);
    }
    return a.fileName() == b.fileName() &&
           QFileInfo(a.path()).canonicalFilePath() == QFileInfo(b.path()).canonicalFilePath();
}

} // namespace

std::optional<QString> manifestFault(const Arguments &arguments, const QStringList &files,
                                     const std::vector<Input> &inputs) {
    const QString &manifest = arguments.manifest;
    const auto isManifest = [&](const QString &path) { return areOne(manifest, path); };
    if (manifest.isEmpty()) {
        return std::nullopt;
    }
    const QFileInfo folder(QFileInfo(manifest).absolutePath());
    if (!folder.isDir() || !folder.isWritable()) {
        return u"--manifest: \"%1\" is in no folder that can be written to"_s.arg(manifest);
    }
    if (std::ranges::any_of(files, isManifest)) {
        return u"--manifest: \"%1\" is an input"_s.arg(manifest);
    }
    std::vector<PDFFileInfo> entries;
    entries.reserve(inputs.size());
    for (const Input &input : inputs) {
        entries.push_back(input.read.entry);
    }
    OutputPlan plan(entries, arguments.options);
    for (std::span<const PDFFileInfo> rest = entries; !rest.empty();) {
        const std::size_t count = arguments.options.merge ? rest.size() : 1;
        if (isManifest(plan.next(rest.first(count)).path)) {
            return u"--manifest: \"%1\" is the name of a PDF of these inputs"_s.arg(manifest);
        }
        rest = rest.subspan(count);
    }
    return std::nullopt;
}

QByteArray manifestJson(const QStringList &options, const QByteArrayList &inputs,
                        const QByteArrayList &outputs) {
    QByteArray json = manifestHead(options, sourceDate().value_or(QDateTime::currentDateTime()));
    json.chop(1); // The object goes on.
    return json + ",\"inputs\":[\n" + inputs.join(",\n") + "\n],\"outputs\":[\n" +
           outputs.join(",\n") + "\n]}\n";
}

std::optional<FileDates> datesOf(const QString &path) {
    try {
        return FileDates{FileVersion::of(path), QFileInfo(path).birthTime()};
    } catch (const Error &) {
        return std::nullopt;
    }
}

bool addSource(InputResult &result, const QString &path, const FileDates &noted) {
    result.source = digestOf(path);
    const auto now = datesOf(path);
    if (!now || now->version != noted.version) {
        result.source.reset();
        return false;
    }
    result.modified = noted.version.modified();
    result.created = noted.created;
    return true;
}

Manifest::Manifest(const Arguments &arguments)
    : m_arguments(arguments) {}

void Manifest::addFiles(const InputResult &result) {
    if (result.source && leadsToFile(result.input)) {
        m_files.push_back({result.input, *result.source});
    } else if (result.source) {
        m_nameless += result.input;
    }
    if (result.target && m_known.insert(result.output).second) {
        m_outputs.push_back({result.output, *result.target});
    }
}

QStringList Manifest::leftOut() const {
    return isForSha256sum() ? m_nameless : QStringList();
}

QByteArray Manifest::asJson() const {
    QByteArrayList outputs;
    for (const File &file : m_outputs) {
        outputs += toJson(file.name, file.digest);
    }
    return manifestJson(m_arguments.given, m_inputs, outputs);
}

QByteArray Manifest::asChecksums() const {
    QByteArray lines;
    for (const auto &files : {m_files, m_outputs}) {
        for (const File &file : files) {
            lines += checksumLine(file.name, file.digest);
        }
    }
    return lines;
}

void Manifest::write() const {
    const QString &path = m_arguments.manifest;
    const QByteArray bytes = isForSha256sum() ? asChecksums() : asJson();
    OutputFile file(path);
    file.write({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    file.finish(m_arguments.options.flush);
    if (m_arguments.mayReplaceManifest) {
        file.replace(path, m_arguments.options.flush);
    } else if (file.publish(path, m_arguments.options.flush) == OutputFile::Published::NameTaken) {
        throw Error(u"The name of the manifest was taken meanwhile"_s);
    }
}

} // namespace folioforge
