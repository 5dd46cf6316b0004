// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/OutputFile.h"
#include "files/PartFiles.h"

#include <QString>

#include <memory>

namespace folioforge {

/// The compressed copy of a document while it is written: a new file that its owner alone can read.
/// Without finish() it is gone with this object.
class TemporaryCopy {
  public:
    /// A copy of the document at `source`, in `folder`. Throws Error.
    TemporaryCopy(const QString &folder, const QString &source, SystemCalls &calls);

    /// Where the document's bytes go.
    [[nodiscard]] OutputFile &file() { return m_file; }
    /// Bytes written so far.
    [[nodiscard]] qint64 size() const { return m_file.size(); }
    /// Gives the copy its name, the source's, or with a number behind it, "(1).pdf" and upwards,
    /// where that is taken. Throws Error.
    std::shared_ptr<const TemporaryFile> finish(Flush flush);

  private:
    std::shared_ptr<const TemporaryFile> publishedAs(const QString &name);

    QString m_folder;
    QString m_source;
    OutputFile m_file;
};

/// Appends the bytes of the file at `path`, read through `calls`, to `target`. Throws Error.
void appendFile(OutputFile &target, const QString &path, SystemCalls &calls);

} // namespace folioforge
