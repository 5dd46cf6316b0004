// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QRectF>
#include <QString>
#include <QStringList>

namespace folioforge::test {

/// The result of a program that was run to its end.
struct ToolRun {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

/// Runs `program` with `arguments` to its end; exit code -1 when it cannot be started.
ToolRun runTool(const QString &program, const QStringList &arguments, const QByteArray &input = {});

/// Reads a PDF file with other programs: poppler's tools, mutool and qpdf. None of this project's
/// code is used, so what it says is an opinion of its own.
class PdfProbe {
  public:
    explicit PdfProbe(QString path, QString password = {});

    /// Whether `qpdf --check` finds neither error nor warning; what it printed goes to `log`.
    [[nodiscard]] bool isValid(QString *log = nullptr) const;
    /// The same of sources with circles and other oddities, which stay: qpdf warns of them since
    /// version 12 and has to find no error.
    [[nodiscard]] bool isAsSoundAsItsSource(QString *log = nullptr) const;
    [[nodiscard]] int pageCount() const;
    /// A line of `pdfinfo` such as "Title"; empty when it is absent.
    [[nodiscard]] QString info(const QString &key) const;
    /// A page's box in points ("MediaBox", "CropBox", ...) as pdfinfo gives it; pages from 1.
    [[nodiscard]] QRectF box(const QString &name, int page) const;
    /// The text of one page, or of the document for page 0, by pdftotext in reading order.
    [[nodiscard]] QString text(int page = 0) const;
    /// The structure tree with its text, as `pdfinfo -struct-text` draws it.
    [[nodiscard]] QString structureText() const;
    /// Where mutool finds the origin of each character of a page, in points from its upper left
    /// corner; pages from 1.
    [[nodiscard]] QList<QPointF> characterOrigins(int page) const;
    /// A page drawn by pdftoppm at `dpi`; pages from 1.
    [[nodiscard]] QImage render(int page, int dpi = 72) const;
    /// Every page drawn by pdftoppm, each so that its longer side has `side` pixels.
    [[nodiscard]] QList<QImage> renderAll(int side) const;
    /// The size, the turn and the boxes of every page, in the words of pdfinfo.
    [[nodiscard]] QList<QByteArray> geometry() const;
    /// A page drawn by mutool at `dpi`; pages from 1.
    [[nodiscard]] QImage renderWithMutool(int page, int dpi = 72) const;
    /// The document as `qpdf --json` gives it.
    [[nodiscard]] QByteArray json() const;
    /// The rows of `pdfimages -list`, without its two header lines, split at white space.
    [[nodiscard]] QList<QStringList> images() const;

  private:
    int check(QString *log) const;
    QString m_path;
    QString m_password;
};

} // namespace folioforge::test
