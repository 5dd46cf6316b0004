// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "cli/Arguments.h"
#include "cli/Manifest.h"
#include "convert/Conversion.h"
#include "filelist/PDFFileInfo.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace folioforge {

/// The manifest that a PDF/A-3 carries: of what went into this PDF alone, and without its own
/// checksum, which it cannot hold.
class AttachedManifest {
  public:
    /// Of inputs called `names` that stand at `files`, with what was noted of them before the run.
    AttachedManifest(const Arguments &arguments, const std::vector<QString> &names,
                     const std::vector<QString> &files,
                     const std::vector<std::optional<FileDates>> &dates);

    /// Whether the arguments ask for one.
    static bool isAskedFor(const Arguments &arguments);
    /// The manifest of `entries`, which went as `outcomes` say. Any thread may ask for it.
    [[nodiscard]] QByteArray of(std::span<const PDFFileInfo *const> entries,
                                const std::vector<EntryOutcome> &outcomes) const;

  private:
    const Arguments &m_arguments;
    const std::vector<QString> &m_names;
    const std::vector<std::optional<FileDates>> &m_dates;
    QHash<QString, std::size_t> m_places; ///< Of the inputs, by their files.
};

} // namespace folioforge
