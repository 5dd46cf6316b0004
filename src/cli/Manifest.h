// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "cli/Arguments.h"
#include "cli/InputResult.h"
#include "files/SourceFile.h"

#include <QByteArray>
#include <QString>

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

    /// Adds an input with its PDF, whose digests are in `result`.
    void add(const InputResult &result);
    /// Writes the file. Throws Error where that fails or its name is taken.
    void write() const;

  private:
    [[nodiscard]] QByteArray asJson() const;
    [[nodiscard]] QByteArray asChecksums() const;

    struct File {
        QString name;
        FileDigest digest;
    };
    const Arguments &m_arguments;
    QByteArrayList m_inputs; ///< As the lines of the report.
    std::vector<File> m_files;
    std::vector<File> m_outputs;
    std::set<QString> m_known; ///< Outputs so far.
};

/// What is noted of a file before a run reads it, so that its digest is that of what was read.
struct FileDates {
    FileVersion version;
    QDateTime created; ///< Invalid where the file system does not keep it.
};

/// Nothing where there is no file.
std::optional<FileDates> datesOf(const QString &path);

} // namespace folioforge
