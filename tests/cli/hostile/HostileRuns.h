// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "support/LimitedRun.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace folioforge::test {

/// The size of the promise, or, where FOLIOFORGE_FULL_LIMITS is not set, one that is quick.
template<typename Number> Number sized(Number full, Number quick) {
    return qEnvironmentVariableIsSet("FOLIOFORGE_FULL_LIMITS") ? full : quick;
}

/// Makes a file of a size: what the size counts is the function's to say.
using Maker = QByteArray (*)(qint64);

/// Columns and rows of files that a function makes, so that no more than one is in memory.
void addColumns();
void addRow(const char *name, Maker maker, qint64 full, qint64 quick);
/// The file of the row.
QByteArray fetched();

/// What a run can end with.
QString written();
QString valid();
QString noMemory();

/// The finished program, given files made to exhaust it: a test inherits this, and calls begin()
/// before each of its functions.
class HostileRuns {
  protected:
    /// Gives a new, empty folder.
    void begin() { m_folder = std::make_unique<QTemporaryDir>(); }
    [[nodiscard]] QString path(const QString &name) const { return m_folder->filePath(name); }
    /// What the runs write.
    [[nodiscard]] QString target() const { return path(QStringLiteral("out.pdf")); }
    [[nodiscard]] QString saved(const QString &name, const QByteArray &bytes) const;
    [[nodiscard]] QString savedPdf(const QByteArray &bytes) const {
        return saved(QStringLiteral("hostile.pdf"), bytes);
    }
    /// Merges and says how it ended: written(), or the reason on standard error.
    [[nodiscard]] QString endingOf(const QStringList &arguments, const Limits &limits = {}) const;
    /// The same, or valid() where qpdf finds what was written in order.
    [[nodiscard]] QString answerTo(const QStringList &arguments, const Limits &limits = {}) const;

  private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

} // namespace folioforge::test
