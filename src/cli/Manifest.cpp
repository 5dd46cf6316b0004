// SPDX-License-Identifier: Apache-2.0

#include "cli/Manifest.h"

#include "cli/Report.h"
#include "error/Error.h"
#include "files/OutputFile.h"
#include "pdf/DocumentInfo.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

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

} // namespace

std::optional<FileDates> datesOf(const QString &path) {
    try {
        return FileDates{FileVersion::of(path), QFileInfo(path).birthTime()};
    } catch (const Error &) {
        return std::nullopt;
    }
}

Manifest::Manifest(const Arguments &arguments)
    : m_arguments(arguments) {}

void Manifest::add(const InputResult &result) {
    m_inputs += toJson(result);
    if (result.source && result.input != u"-") {
        m_files.push_back({result.input, *result.source});
    }
    if (result.target && m_known.insert(result.output).second) {
        m_outputs.push_back({result.output, *result.target});
    }
}

QByteArray Manifest::asJson() const {
    const QDateTime now = sourceDate().value_or(QDateTime::currentDateTime());
    QByteArray json = manifestHead(m_arguments.given, now);
    json.chop(1); // The object goes on.
    json += ",\"inputs\":[\n" + m_inputs.join(",\n") + "\n],\"outputs\":[\n";
    QByteArrayList outputs;
    for (const File &file : m_outputs) {
        outputs += toJson(file.name, file.digest);
    }
    return json + outputs.join(",\n") + "\n]}\n";
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
    const QByteArray bytes = path.endsWith(u".sha256") ? asChecksums() : asJson();
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
