#include "support/PdfProbe.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <limits>

namespace folioforge::test {

namespace {

QStringList popplerPassword(const QString &password) {
    return password.isEmpty() ? QStringList() : QStringList{QStringLiteral("-upw"), password};
}

QStringList mutoolPassword(const QString &password) {
    return password.isEmpty() ? QStringList() : QStringList{QStringLiteral("-p"), password};
}

QStringList pageRange(int page) {
    const QString number = QString::number(page);
    return {QStringLiteral("-f"), number, QStringLiteral("-l"), number};
}

/// The length of the PPM picture at the start of `bytes`; -1 where there is none.
qsizetype lengthOfPpm(QByteArrayView bytes) {
    static const QRegularExpression header(QStringLiteral("^P6\\s+(\\d+)\\s+(\\d+)\\s+255\\s"));
    constexpr qsizetype kLongestHeader = 32;
    const auto match =
        header.match(QString::fromLatin1(bytes.first(std::min(bytes.size(), kLongestHeader))));
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

bool PdfProbe::isValid(QString *log) const {
    const ToolRun run = runTool(QStringLiteral("qpdf"), {QStringLiteral("--password=") + m_password,
                                                         QStringLiteral("--check"), m_path});
    if (log) {
        *log = QString::fromUtf8(run.out + run.err);
    }
    return run.exitCode == 0;
}

int PdfProbe::pageCount() const {
    return info(QStringLiteral("Pages")).toInt();
}

QString PdfProbe::info(const QString &key) const {
    const ToolRun run =
        runTool(QStringLiteral("pdfinfo"), popplerPassword(m_password) + QStringList{m_path});
    const auto lines = QString::fromUtf8(run.out).split(u'\n');
    for (const QString &line : lines) {
        if (line.startsWith(key + u':')) {
            return line.sliced(key.size() + 1).trimmed();
        }
    }
    return {};
}

QRectF PdfProbe::box(const QString &name, int page) const {
    const ToolRun run =
        runTool(QStringLiteral("pdfinfo"), popplerPassword(m_password) + pageRange(page) +
                                               QStringList{QStringLiteral("-box"), m_path});
    const QRegularExpression row(
        QStringLiteral("Page\\s+%1\\s+%2:\\s+(\\S+)\\s+(\\S+)\\s+(\\S+)\\s+(\\S+)")
            .arg(page)
            .arg(name));
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
    arguments += {QStringLiteral("-enc"), QStringLiteral("UTF-8"), m_path, QStringLiteral("-")};
    return QString::fromUtf8(runTool(QStringLiteral("pdftotext"), arguments).out);
}

QList<QPointF> PdfProbe::characterOrigins(int page) const {
    const ToolRun run = runTool(QStringLiteral("mutool"),
                                QStringList{QStringLiteral("draw"), QStringLiteral("-q")} +
                                    mutoolPassword(m_password) +
                                    QStringList{QStringLiteral("-F"), QStringLiteral("stext"),
                                                m_path, QString::number(page)});
    static const QRegularExpression character(
        QStringLiteral("<char [^>]* x=\"([-0-9.]+)\" y=\"([-0-9.]+)\""));
    QList<QPointF> origins;
    for (const auto &match : character.globalMatch(QString::fromUtf8(run.out))) {
        origins += {match.captured(1).toDouble(), match.captured(2).toDouble()};
    }
    return origins;
}

QImage PdfProbe::render(int page, int dpi) const {
    const QStringList arguments =
        popplerPassword(m_password) + pageRange(page) +
        QStringList{QStringLiteral("-r"), QString::number(dpi), QStringLiteral("-png"), m_path};
    return QImage::fromData(runTool(QStringLiteral("pdftoppm"), arguments).out);
}

QList<QImage> PdfProbe::renderAll(int side) const {
    const QStringList arguments =
        popplerPassword(m_password) +
        QStringList{QStringLiteral("-scale-to"), QString::number(side), m_path};
    const QByteArray pictures = runTool(QStringLiteral("pdftoppm"), arguments).out;
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
        runTool(QStringLiteral("pdfinfo"),
                popplerPassword(m_password) +
                    QStringList{QStringLiteral("-box"), QStringLiteral("-l"), everyPage, m_path});
    static const QRegularExpression line(QStringLiteral("^Page +(\\d+) +(.*)$"),
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
    const QString target = folder.filePath(QStringLiteral("page.png"));
    QStringList arguments{QStringLiteral("draw"), QStringLiteral("-q"), QStringLiteral("-r"),
                          QString::number(dpi),   QStringLiteral("-o"), target};
    arguments += mutoolPassword(m_password) + QStringList{m_path, QString::number(page)};
    runTool(QStringLiteral("mutool"), arguments);
    return QImage(target);
}

QByteArray PdfProbe::json() const {
    return runTool(QStringLiteral("qpdf"),
                   {QStringLiteral("--password=") + m_password, QStringLiteral("--json"), m_path})
        .out;
}

QList<QStringList> PdfProbe::images() const {
    const ToolRun run =
        runTool(QStringLiteral("pdfimages"),
                popplerPassword(m_password) + QStringList{QStringLiteral("-list"), m_path});
    const auto lines = QString::fromUtf8(run.out).split(u'\n', Qt::SkipEmptyParts);
    QList<QStringList> rows;
    for (const QString &line : lines.mid(2)) {
        rows += line.split(u' ', Qt::SkipEmptyParts);
    }
    return rows;
}

} // namespace folioforge::test
