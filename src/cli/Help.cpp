// SPDX-License-Identifier: Apache-2.0

#include "cli/Arguments.h"
#include "cli/OptionHelp.h"

namespace folioforge {
namespace {

constexpr qsizetype kWidth = 88;
constexpr qsizetype kTextColumn = 31;

/// `text` in lines of at most kWidth columns, each but the first behind `indent` blanks. The first
/// goes on behind `used` columns.
QByteArray wrapped(QByteArrayView text, qsizetype indent, qsizetype used) {
    QByteArray result;
    qsizetype column = used;
    for (const QByteArray &word : text.toByteArray().split(' ')) {
        const bool isFirst = result.isEmpty();
        if (!isFirst && column + 1 + word.size() > kWidth) {
            result += '\n' + QByteArray(indent, ' ');
            column = indent;
        } else if (!isFirst) {
            result += ' ';
            ++column;
        }
        result += word;
        column += word.size();
    }
    return result;
}

QByteArray lineOf(const OptionHelp &option) {
    QByteArray line = "  " + option.name.toByteArray();
    if (!option.value.isEmpty()) {
        line += ' ' + option.value.toByteArray();
    }
    if (option.text.isEmpty()) {
        return line + '\n';
    }
    if (line.size() + 1 > kTextColumn) {
        line += '\n' + QByteArray(kTextColumn, ' ');
    } else {
        line = line.leftJustified(kTextColumn, ' ');
    }
    return line + wrapped(option.text, kTextColumn, kTextColumn) + '\n';
}

} // namespace

QByteArray helpText() {
    QByteArray text = R"(Usage: folioforge-cli [options] FILE|FOLDER...

Turns text files, pictures and PDFs into PDF documents, one for each or all in one.

Examples
  folioforge-cli scans                                     a PDF for each, here
  folioforge-cli --output-folder pdfs notes.txt scans      a PDF for each, in pdfs
  folioforge-cli --merge all.pdf cover.txt scans part.pdf  one PDF, in this order
  folioforge-cli --compress 96m --merge mail.pdf photos    small enough to send
  git log | folioforge-cli --merge history.pdf -           what a program writes
)";
    for (const HelpSection &section : optionHelp()) {
        text += '\n' + section.title.toByteArray() + '\n';
        if (!section.note.isEmpty()) {
            text += wrapped(section.note, 0, 0) + '\n';
        }
        for (const OptionHelp &option : section.options) {
            text += lineOf(option);
        }
    }
    return text + R"(
"--" ends the options: what follows is a file even where it starts with "-".

Exit status: 0 all converted; 1 some inputs failed or were rejected, the rest converted,
or with --strict, a warning was given; 2 wrong arguments or settings, nothing written.
)";
}

} // namespace folioforge
