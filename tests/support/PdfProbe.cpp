// SPDX-License-Identifier: Apache-2.0

#include "support/PdfProbe.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace folioforge::test {

namespace {

QStringList popplerPassword(const QString &password) {
    return password.isEmpty() ? QStringList() : QStringList{u"-upw"_s, password};
}

QStringList mutoolPassword(const QString &password) {
    return password.isEmpty() ? QStringList() : QStringList{u"-p"_s, password};
}

QStringList pageRange(int page) {
    const QString number = QString::number(page);
    return {u"-f"_s, number, u"-l"_s, number};
}

/// The length of the PPM picture at the start of `bytes`; -1 where there is none.
qsizetype lengthOfPpm(QByteArrayView bytes) {
    static const QRegularExpression header(u"^P6\\s+(\\d+)\\s+(\\d+)\\s+255\\s"_s);
    constexpr qsizetype kMaxHeaderLength = 32;
    const auto match =
        header.match(QString::fromLatin1(bytes.first(std::min(bytes.size(), kMaxHeaderLength))));
    if (!match.hasMatch()) {
        return -1;
    }
    const qsizetype samples = match.captured(1).toLongLong() * match.captured(2).toLongLong() * 3;
    return match.capturedLength() + samples;
}

} // namespace

ToolRun runTool(const QString &program, const QStringList &arguments, const QByteArray &input) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForStarted()) {
        return {-1, {}, process.errorString().toUtf8()};
    }
    process.write(input);
    process.closeWriteChannel();
    constexpr int kPatienceMs = 120'000;
    if (!process.waitForFinished(kPatienceMs)) {
        process.kill();
        process.waitForFinished();
        return {-1, process.readAllStandardOutput(), "timed out"};
    }
    const int code = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return {code, process.readAllStandardOutput(), process.readAllStandardError()};
}

PdfProbe::PdfProbe(QString path, QString password)
    : m_path(std::move(path))
    , m_password(std::move(password)) {}

int PdfProbe::check(QString *log) const {
    const ToolRun run = runTool(u"qpdf"_s, {u"--password="_s + m_password, u"--check"_s, m_path});
    if (log) {
        *log = QString::fromUtf8(run.out + run.err);
    }
    return run.exitCode;
}

bool PdfProbe::isValid(QString *log) const {
    return check(log) == 0;
}

bool PdfProbe::isAsSoundAsItsSource(QString *log) const {
    constexpr int kWarnings = 3;
    static const bool warnsOfOddities = [] {
        const QByteArray version =
            runTool(u"qpdf"_s, {u"--version"_s}).out; // "qpdf version 12.4.2"
        return version.split(' ').value(2).split('.').value(0).toInt() >= 12;
    }();
    const int status = check(log);
    return status == 0 || (warnsOfOddities && status == kWarnings);
}

int PdfProbe::pageCount() const {
    return info(u"Pages"_s).toInt();
}

QString PdfProbe::info(const QString &key) const {
    const ToolRun run = runTool(u"pdfinfo"_s, popplerPassword(m_password) + QStringList{m_path});
    const auto lines = QString::fromUtf8(run.out).split(u'\n');
    for (const QString &line : lines) {
        if (line.startsWith(key + u':')) {
            return line.sliced(key.size() + 1).trimmed();
        }
    }
    return {};
}

QRectF PdfProbe::box(const QString &name, int page) const {
    const ToolRun run = runTool(u"pdfinfo"_s, popplerPassword(m_password) + pageRange(page) +
                                                  QStringList{u"-box"_s, m_path});
    const QRegularExpression row(
        u"Page\\s+%1\\s+%2:\\s+(\\S+)\\s+(\\S+)\\s+(\\S+)\\s+(\\S+)"_s.arg(page).arg(name));
    const auto match = row.match(QString::fromUtf8(run.out));
    const auto number = [&match](int group) { return match.captured(group).toDouble(); };
    return match.hasMatch() ? QRectF(QPointF(number(1), number(2)), QPointF(number(3), number(4)))
                            : QRectF();
}

QString PdfProbe::text(int page) const {
    QStringList arguments = popplerPassword(m_password);
    if (page > 0) {
        arguments += pageRange(page);
    }
    arguments += {u"-enc"_s, u"UTF-8"_s, m_path, u"-"_s};
    return QString::fromUtf8(runTool(u"pdftotext"_s, arguments).out);
}

QString PdfProbe::structureText() const {
    return QString::fromUtf8(
        runTool(u"pdfinfo"_s, popplerPassword(m_password) + QStringList{u"-struct-text"_s, m_path})
            .out);
}

QList<QPointF> PdfProbe::characterOrigins(int page) const {
    const ToolRun run =
        runTool(u"mutool"_s, QStringList{u"draw"_s, u"-q"_s} + mutoolPassword(m_password) +
                                 QStringList{u"-F"_s, u"stext"_s, m_path, QString::number(page)});
    static const QRegularExpression character(u"<char [^>]* x=\"([-0-9.]+)\" y=\"([-0-9.]+)\""_s);
    QList<QPointF> origins;
    for (const auto &match : character.globalMatch(QString::fromUtf8(run.out))) {
        origins += {match.captured(1).toDouble(), match.captured(2).toDouble()};
    }
    return origins;
}

QImage PdfProbe::render(int page, int dpi) const {
    const QStringList arguments = popplerPassword(m_password) + pageRange(page) +
                                  QStringList{u"-r"_s, QString::number(dpi), u"-png"_s, m_path};
    return QImage::fromData(runTool(u"pdftoppm"_s, arguments).out);
}

QList<QImage> PdfProbe::renderAll(int side) const {
    const QStringList arguments =
        popplerPassword(m_password) + QStringList{u"-scale-to"_s, QString::number(side), m_path};
    const QByteArray pictures = runTool(u"pdftoppm"_s, arguments).out;
    QList<QImage> pages;
    QByteArrayView rest(pictures);
    for (auto length = lengthOfPpm(rest); length > 0 && length <= rest.size();
         length = lengthOfPpm(rest)) {
        pages += QImage::fromData(rest.first(length), "PPM");
        rest = rest.sliced(length);
    }
    return pages;
}

QList<QByteArray> PdfProbe::geometry() const {
    const QString everyPage = QString::number(std::numeric_limits<int>::max());
    const ToolRun run =
        runTool(u"pdfinfo"_s,
                popplerPassword(m_password) + QStringList{u"-box"_s, u"-l"_s, everyPage, m_path});
    static const QRegularExpression line(u"^Page +(\\d+) +(.*)$"_s,
                                         QRegularExpression::MultilineOption);
    QList<QByteArray> pages;
    auto match = line.globalMatch(QString::fromLatin1(run.out));
    while (match.hasNext()) {
        const auto found = match.next();
        const auto page = found.captured(1).toLongLong();
        pages.resize(std::max<qsizetype>(pages.size(), page));
        pages[page - 1] += found.captured(2).toLatin1() + '\n';
    }
    return pages;
}

QImage PdfProbe::renderWithMutool(int page, int dpi) const {
    const QTemporaryDir folder;
    const QString target = folder.filePath(u"page.png"_s);
    QStringList arguments{u"draw"_s, u"-q"_s, u"-r"_s, QString::number(dpi), u"-o"_s, target};
    arguments += mutoolPassword(m_password) + QStringList{m_path, QString::number(page)};
    runTool(u"mutool"_s, arguments);
    return QImage(target);
}

QByteArray PdfProbe::json() const {
    return runTool(u"qpdf"_s, {u"--password="_s + m_password, u"--json"_s, m_path}).out;
}

QList<QStringList> PdfProbe::images() const {
    const ToolRun run =
        runTool(u"pdfimages"_s, popplerPassword(m_password) + QStringList{u"-list"_s, m_path});
    const auto lines = QString::fromUtf8(run.out).split(u'\n', Qt::SkipEmptyParts);
    QList<QStringList> rows;
    for (const QString &line : lines.mid(2)) {
        rows += line.split(u' ', Qt::SkipEmptyParts);
    }
    return rows;
}

} // namespace folioforge::test
