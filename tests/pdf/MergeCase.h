// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/PDFContext.h"
#include "support/OpenedPdf.h"
#include "support/PdfFixture.h"
#include "support/PdfProbe.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <utility>

namespace folioforge::test {

/// Three pages, 4 to 6, with the contents 7, 8 and 9 and a font, 3.
inline PdfFixture threePages(const QByteArray &keysOfCatalog = {}) {
    return PdfFixture()
        .object(1, "<< /Type /Catalog /Pages 2 0 R " + keysOfCatalog + " >>")
        .pages(4, 3);
}

/// Documents of tests need not survive a loss of power.
inline PDFContext::Settings unflushed() {
    PDFContext::Settings settings;
    settings.flush = Flush::Never;
    return settings;
}

/// A folder for documents and what they are merged into.
class MergeCase {
  protected:
    QTemporaryDir m_folder;
    int m_number = 0;

    QString newPath() { return m_folder.filePath(QStringLiteral("%1.pdf").arg(++m_number)); }

    QString saved(const PdfFixture &fixture) {
        const QString path = newPath();
        return fixture.write(path) ? path : QString();
    }

    /// The same under `name`, in a folder of its own.
    QString savedAs(const QString &name, const PdfFixture &fixture) {
        const QString folder = m_folder.filePath(QString::number(++m_number));
        const QString path = folder + QLatin1Char('/') + name;
        return QDir().mkpath(folder) && fixture.write(path) ? path : QString();
    }

    /// The PDF of all of `sources`, which qpdf finds in order. `whole` where a single source is all
    /// of it.
    QString merged(const QStringList &sources, bool whole = false) {
        QString path = produced(sources, whole);
        if (QString log; !PdfProbe(path).isValid(&log)) {
            QTest::qFail(qPrintable(log), __FILE__, __LINE__);
        }
        return path;
    }

    /// The same of sources of which newer qpdf warns, as of what comes of them; it has no error.
    QString mergedOfOdd(const QStringList &sources) {
        QString path = produced(sources, false);
        if (QString log; !PdfProbe(path).isAsSoundAsItsSource(&log)) {
            QTest::qFail(qPrintable(log), __FILE__, __LINE__);
        }
        return path;
    }

  private:
    QString produced(const QStringList &sources, bool whole) {
        QString path = newPath();
        PDFContext::Settings settings = unflushed();
        settings.oneSource = whole;
        settings.sources = {sources.begin(), sources.end()};
        PDFContext context(path, std::move(settings));
        for (const QString &source : sources) {
            context.addDocument(source);
        }
        const CloseResult result = context.close();
        if (result.status != CloseResult::Status::Written) {
            QTest::qFail(qPrintable(result.reason), __FILE__, __LINE__);
        }
        return path;
    }
};

} // namespace folioforge::test
