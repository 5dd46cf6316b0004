// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "convert/ConversionOptions.h"
#include "filelist/PDFFileInfo.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <set>
#include <span>
#include <utility>

namespace folioforge {

/// Where the PDF of some entries goes.
struct PlannedOutput {
    enum class Action {
        Write,    ///< Under a name that is free, or in place of the file that may be replaced.
        Keep,     ///< The file under the name, which no other PDF asks for, is not older than its
                  ///< sources.
        Forbidden ///< The file under the name is one of the sources.
    };
    QString path;
    Action action = Action::Write;
};

/// Gives the PDFs of a run their names, one after another, and no name twice.
class OutputPlan {
  public:
    /// `entries` are those of the whole run; none of them is ever replaced.
    OutputPlan(std::span<const PDFFileInfo> entries, const ConversionOptions &options);

    /// The output of the next PDF, which is made of `entries`.
    [[nodiscard]] PlannedOutput next(std::span<const PDFFileInfo> entries);
    /// No PDF came of `path`: the name may be given again.
    void giveBack(const QString &path) { m_given.remove(path); }

  private:
    using FileKey = std::pair<quint64, quint64>; ///< Device and file.

    [[nodiscard]] bool isTaken(const QString &path) const;
    [[nodiscard]] QString wishOf(const PDFFileInfo &entry) const;
    [[nodiscard]] bool isOnlyOne(std::span<const PDFFileInfo> entries) const;

    const ConversionOptions &m_options;
    std::set<FileKey> m_sources;  ///< Only where something may be replaced.
    QHash<QString, int> m_wishes; ///< How many PDFs would have each path if it were free.
    QSet<QString> m_given;
};

} // namespace folioforge
