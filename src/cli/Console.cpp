#include "cli/Console.h"

#include <QList>

#include <cerrno>
#include <cstdio>

namespace folioforge {
namespace {

bool isHarmful(char32_t character) {
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format: // Marks that reverse the direction of what follows are among them.
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

QString escaped(char32_t character) {
    constexpr int kHexadecimal = 16;
    constexpr char32_t kLastAscii = 0x7F;
    const QString digits = QString::number(character, kHexadecimal).rightJustified(2, u'0');
    return character <= kLastAscii ? QStringLiteral("\\x") + digits
                                   : QStringLiteral("\\u{") + digits + u'}';
}

void write(std::FILE *stream, const QByteArray &bytes) {
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
}

} // namespace

QString printable(const QString &text) {
    QString result;
    const auto characters = text.toUcs4();
    for (const char32_t character : characters) {
        if (isHarmful(character)) {
            result += escaped(character);
        } else {
            result += QChar::fromUcs4(character);
        }
    }
    return result;
}

void Console::result(const QByteArray &line) {
    eraseProgress();
    write(stdout, line + '\n');
    // A reader that went away has what it wanted; the documents are written all the same.
    if (std::fflush(stdout) != 0 && errno != EPIPE) {
        m_resultsArrived = false;
    }
}

void Console::complain(const QString &message) {
    addLine(QStringLiteral("folioforge-cli: ") + message);
}

void Console::addLine(const QString &line) {
    eraseProgress();
    write(stderr, printable(line).toUtf8() + '\n');
}

void Console::showProgress(const QString &text) {
    eraseProgress();
    write(stderr, printable(text).toUtf8());
    std::fflush(stderr);
    m_progressShown = !text.isEmpty();
}

void Console::eraseProgress() {
    if (m_progressShown) {
        write(stderr, "\r\033[K");
        m_progressShown = false;
    }
}

} // namespace folioforge
