// SPDX-License-Identifier: Apache-2.0

#include "support/Files.h"

#include "support/PdfProbe.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QThread>

using namespace Qt::StringLiterals;

namespace folioforge::test {
namespace {

constexpr double kInchesPerMetre = 39.3700787;

/// Collects the objects of a plain PDF file and its cross-reference table.
class PlainPdf {
  public:
    void addObject(const QByteArray &body) {
        m_offsets += m_bytes.size();
        m_bytes += QByteArray::number(m_offsets.size()) + " 0 obj\n" + body + "\nendobj\n";
    }

    QByteArray finished() const {
        QByteArray bytes = m_bytes;
        const QByteArray size = QByteArray::number(m_offsets.size() + 1);
        bytes += "xref\n0 " + size + "\n0000000000 65535 f \n";
        for (const qsizetype offset : m_offsets) {
            bytes += QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
        }
        return bytes + "trailer\n<< /Size " + size + " /Root 1 0 R >>\nstartxref\n" +
               QByteArray::number(m_bytes.size()) + "\n%%EOF\n";
    }

  private:
    QByteArray m_bytes = "%PDF-1.4\n";
    QList<qsizetype> m_offsets;
};

} // namespace

QString writeFile(const QString &path, const QByteArray &bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
    return path;
}

bool writeFileAfter(const QString &older, const QString &path) {
    const QDateTime before = QFileInfo(older).birthTime();
    // The clock of a file system stands still for some milliseconds at a time.
    const QDeadlineTimer patience(5000);
    do {
        QFile::remove(path);
        if (QFileInfo(writeFile(path, "x")).birthTime() > before) {
            return true;
        }
        QThread::msleep(1);
    } while (before.isValid() && !patience.hasExpired());
    return false;
}

void setModified(const QString &path, const QDateTime &when) {
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) ||
        !file.setFileTime(when, QFileDevice::FileModificationTime)) {
        qFatal("cannot set the date of %s", qPrintable(path));
    }
}

QByteArray readFile(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString writePng(const QString &path, int width, int height, int dpi) {
    QImage image(width, height, QImage::Format_RGB888);
    image.fill(Qt::red);
    const int perMetre = qRound(dpi * kInchesPerMetre);
    image.setDotsPerMeterX(perMetre);
    image.setDotsPerMeterY(perMetre);
    if (!image.save(path, "PNG")) {
        qFatal("cannot write %s", qPrintable(path));
    }
    return path;
}

QString writePdf(const QString &path, int pages) {
    PlainPdf pdf;
    QByteArray kids;
    for (int page = 0; page < pages; ++page) {
        kids += QByteArray::number(page + 3) + " 0 R ";
    }
    pdf.addObject("<< /Type /Catalog /Pages 2 0 R >>");
    pdf.addObject("<< /Type /Pages /Count " + QByteArray::number(pages) + " /Kids [" + kids +
                  "] >>");
    for (int page = 0; page < pages; ++page) {
        pdf.addObject("<< /Type /Page /Parent 2 0 R /MediaBox [0 0 " +
                      QByteArray::number(200 + 10 * page) + " 100] /Resources << >> >>");
    }
    return writeFile(path, pdf.finished());
}

QString encryptPdf(const QString &from, const QString &to, const QString &userPassword) {
    const ToolRun run =
        runTool(u"qpdf"_s, {u"--encrypt"_s, userPassword, u"owner"_s, u"256"_s, u"--"_s, from, to});
    if (run.exitCode != 0) {
        qFatal("qpdf: %s", run.err.constData());
    }
    return to;
}

} // namespace folioforge::test
