// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ConversionCase.h"
#include "files/SourceFile.h"
#include "support/Places.h"
#include "verify/Verification.h"

namespace folioforge::test {

/// A conversion whose pages are held against their sources.
class VerificationCase : protected ConversionCase {
  protected:
    void setUpVerifying() {
        setUp();
        m_options.verify = true;
    }

    static QString data(const char *name) {
        return inSource(QStringLiteral("tests/data/") + QLatin1StringView(name));
    }

    /// What is wrong, with the names of files.
    QByteArrayList faults(const PDFOutcome &outcome) const {
        QByteArrayList all;
        for (std::size_t i = 0; i < outcome.entries.size(); ++i) {
            const EntryOutcome &entry = outcome.entries[i];
            if (!entry.written || !entry.verification || !entry.verification->holds()) {
                all += (m_list[i]->fileName() + QStringLiteral(": ") + entry.reason).toUtf8();
            }
        }
        return all + (outcome.isWritten() ? QByteArrayList()
                                          : QByteArrayList{outcome.close.reason.toUtf8()});
    }

    /// A PDF that stands already; `file` must outlive it.
    static WrittenDocument finished(const SourceFile &file) {
        return {
            file.version().path.toStdString(), file.version().size,
            [&file](qint64 offset, std::span<char> target) { return file.readAt(offset, target); },
            std::nullopt};
    }

    /// Writes a PDF of the list to look for afterwards.
    QString written() {
        m_options.merge = true;
        return convertTo(path("out/whole.pdf")).close.path;
    }

    PDFOutcome verified(const QString &pdf) {
        m_options.merge = true;
        m_options.dryRun = true;
        m_options.verifyOnly = pdf;
        return convertTo(pdf);
    }
};

} // namespace folioforge::test
