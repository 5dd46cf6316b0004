// SPDX-License-Identifier: Apache-2.0

#include "support/HostileNames.h"

#include <QFile>
#include <QStringDecoder>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace folioforge::test {

QList<QByteArray> hostileNames() {
    QList<QByteArray> names{
        "it's.txt",
        "a \"double\" quote.txt",
        "two\nlines.txt",
        "return\r.txt",
        "tab\t.txt",
        "`touch pwned`.txt",
        "$(touch pwned).txt",
        "$HOME ${PATH}.txt",
        "back\\slash\\.txt",
        "100% %s %n %1 %2 %%.txt",
        "; touch pwned; #.txt",
        "a & b | c > d < e.txt",
        "* ? [a] {1..3} ~ !.txt",
        "-rf.txt",
        "--json.txt",
        " blanks at both ends .txt",
        ".hidden.txt",
        "two.dots..txt",
        "<b>bold<b> & <img src=x>.txt",
        "\x1b[2J\x1b]0;title\x07.txt",
        "\x7f\x08.txt",
        "\xc2\x9b\x32J.txt",       // A control sequence introducer of one character.
        "\xe2\x80\xaetxt.gpj.txt", // What follows is shown from right to left.
        "\xe2\x80\xa8line.txt",    // A line separator.
        "\xf0\x9f\x91\xa9\xe2\x80\x8d\xf0\x9f\x9a\x80.txt", // An emoji of two with a joiner.
        "e\xcc\x81.txt",                                    // A letter with its accent apart.
        "caf\xe9.txt",                                      // Latin-1.
        "\xff\xfe\xfd.txt",
        "cut \xe2\x82.txt",
    };
    names += QByteArray(251, 'l') + ".txt";
    names += QByteArray("\xc3\xa9").repeated(125) + "1.txt";
    names += QByteArray("\xf0\x9f\x98\x80").repeated(62) + "123.txt";
    return names;
}

void writeFileNamed(const QByteArray &path, const QByteArray &bytes) {
    const auto size = static_cast<std::size_t>(bytes.size());
    std::FILE *file = std::fopen(path.constData(), "wbx");
    if (!file || std::fwrite(bytes.constData(), 1, size, file) != size || std::fclose(file) != 0) {
        qFatal("cannot write %s", path.constData());
    }
}

FolderOfHostileNames::FolderOfHostileNames(const QString &path)
    : m_path(QFile::encodeName(path)) {
    std::filesystem::create_directories(m_path.toStdString());
}

FolderOfHostileNames::~FolderOfHostileNames() {
    std::error_code failure;
    std::filesystem::remove_all(m_path.toStdString(), failure);
}

QString readableBase(const QByteArray &name) {
    return QString::fromUtf8(name.first(name.lastIndexOf('.')));
}

bool isHarmlessForTerminals(const QByteArray &output) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(output);
    const auto characters = text.toUcs4();
    constexpr char32_t kFirstDirection = 0x202A; // U+202A to U+202E embed and override.
    constexpr char32_t kLastDirection = 0x202E;
    return !decoder.hasError() &&
           std::none_of(characters.begin(), characters.end(), [](char32_t character) {
               const bool control = character < U' ' || (character >= 0x7F && character < 0xA0);
               const bool turns = character >= kFirstDirection && character <= kLastDirection;
               const bool breaks = character == 0x2028 || character == 0x2029;
               return (control && character != U'\n') || turns || breaks;
           });
}

} // namespace folioforge::test
