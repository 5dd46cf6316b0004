// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "cli/Arguments.h"
#include "cli/InputResult.h"
#include "cli/Inputs.h"
#include "files/SourceFile.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <set>
#include <vector>

namespace folioforge {

/// The list of --manifest: what went into PDFs and what came out, each file with its SHA-256. As
/// JSON (docs/manifest.schema.json), or for a name that ends in ".sha256" as `sha256sum -c` reads
/// it.
class Manifest {
  public:
    explicit Manifest(const Arguments &arguments);

    /// Adds what the report says of an input.
    void addLine(const QByteArray &line) { m_inputs += line; }
    /// Adds the files of an input and its PDF, whose digests are in `result`.
    void addFiles(const InputResult &result);
    /// The inputs that no list for sha256sum can name, where the manifest is one: what came through
    /// a pipe, or has a name that is not UTF-8.
    [[nodiscard]] QStringList leftOut() const;
    /// Writes the file. Throws Error where that fails or its name is taken.
    void write() const;

  private:
    [[nodiscard]] QByteArray asJson() const;
    [[nodiscard]] QByteArray asChecksums() const;
    [[nodiscard]] bool isForSha256sum() const { return m_arguments.manifest.endsWith(u".sha256"); }

    struct File {
        QString name;
        FileDigest digest;
    };
    const Arguments &m_arguments;
    QByteArrayList m_inputs; ///< As the lines of the report.
    std::vector<File> m_files;
    QStringList m_nameless; ///< Inputs that no name leads to.
    std::vector<File> m_outputs;
    std::set<QString> m_known; ///< Outputs so far.
};

/// Why the manifest of `arguments` cannot have its name: it is that of one of `files`, which are
/// read, or of a PDF of `inputs`. Nothing where it can, and where none is asked for.
std::optional<QString> manifestFault(const Arguments &arguments, const QStringList &files,
                                     const std::vector<Input> &inputs);

/// What is noted of a file before a run reads it, so that its digest is that of what was read.
struct FileDates {
    FileVersion version;
    QDateTime created; ///< Invalid where the file system does not keep it.
};

/// Nothing where there is no file.
std::optional<FileDates> datesOf(const QString &path);

/// Puts into `result` what the file at `path` holds and when it was made. Returns whether it is as
/// it was `noted`; else `result` has no checksum: it would not be that of what was read.
bool addSource(InputResult &result, const QString &path, const FileDates &noted);

/// A manifest as JSON, of the options that were given and the lines of inputs and outputs.
QByteArray manifestJson(const QStringList &options, const QByteArrayList &inputs,
                        const QByteArrayList &outputs);

} // namespace folioforge
