// SPDX-License-Identifier: Apache-2.0

#include "cli/Completions.h"

#include "cli/OptionHelp.h"

namespace folioforge {
namespace {

template<typename Line> QByteArray linesOf(const Line &line) {
    QByteArray lines;
    for (const HelpSection &section : optionHelp()) {
        for (const OptionHelp &option : section.options) {
            lines += line(option);
        }
    }
    return lines;
}

/// `text` for single quotes of a shell.
QByteArray shellQuoted(QByteArray text) {
    return '\'' + text.replace('\'', "'\\''") + '\'';
}

// Files need no words: they are what bash completes where nothing else is known.
QByteArray bashCase(const OptionHelp &option) {
    if (option.value.isEmpty()) {
        return {};
    }
    QByteArray made;
    if (option.value == "DIR") { // Blanks belong to the names of folders, and are to be quoted.
        made = "IFS=$'\\n'; compopt -o filenames 2>/dev/null; "
               "COMPREPLY=($(compgen -d -- \"$word\")); ";
    } else if (!option.words().isEmpty()) {
        made = "COMPREPLY=($(compgen -W " + shellQuoted(option.words().join(' ')) +
               " -- \"$word\")); ";
    }
    return "    " + option.name.toByteArray() + ") " + made + "return ;;\n";
}

QByteArray bashCompletions() {
    const QByteArray names =
        linesOf([](const OptionHelp &option) { return ' ' + option.name.toByteArray(); });
    return R"(# Completes folioforge-cli in bash.
_folioforge_cli() {
    local IFS=$' \n' word=${COMP_WORDS[COMP_CWORD]} option=${COMP_WORDS[COMP_CWORD-1]}
    # "--option=word" arrives in three pieces.
    if [[ $word == = ]]; then
        word=
    elif [[ $option == = ]]; then
        option=${COMP_WORDS[COMP_CWORD-2]}
    fi
    COMPREPLY=()
    case $option in
)" + linesOf(bashCase) +
           R"(    esac
    if [[ $word == -* ]]; then
        COMPREPLY=($(compgen -W ')" +
           names.trimmed() + R"(' -- "$word"))
    fi
}
complete -o default -F _folioforge_cli folioforge-cli
)";
}

QByteArray zshLine(const OptionHelp &option) {
    QByteArray text = option.text.toByteArray();
    for (const char special : {'\\', '[', ']', ':'}) {
        text.replace(special, QByteArray("\\") + special);
    }
    // The star: it may come more than once, for several inputs.
    QByteArray line =
        '*' + option.name.toByteArray() + (option.value.isEmpty() ? "[" : "=[") + text + ']';
    if (!option.value.isEmpty()) {
        const QByteArray words = option.words().join(' ');
        line += ":value:";
        line += option.value == "DIR"    ? "_files -/"
                : option.value == "FILE" ? "_files"
                : words.isEmpty()        ? " "
                                         : '(' + words + ')';
    }
    return " \\\n    " + shellQuoted(line);
}

QByteArray zshCompletions() {
    return "#compdef folioforge-cli\n_arguments" + linesOf(zshLine) + " \\\n    '*:file:_files'\n";
}

QByteArray fishLine(const OptionHelp &option) {
    const QByteArray name = option.name.toByteArray();
    QByteArray line = "complete -c folioforge-cli ";
    line += name.startsWith("--") ? "-l " + name.sliced(2) : "-s " + name.sliced(1);
    const QByteArrayList words = option.words();
    if (option.value == "DIR") {
        line += " -x -a '(__fish_complete_directories)'";
    } else if (option.value == "FILE") {
        line += " -r -F";
    } else if (!words.isEmpty()) {
        line += " -x -a " + shellQuoted(words.join(' '));
    } else if (!option.value.isEmpty()) {
        line += " -x";
    }
    if (!option.text.isEmpty()) {
        line += " -d " + shellQuoted(option.text.toByteArray());
    }
    return line + '\n';
}

} // namespace

QByteArray completions(Shell shell) {
    switch (shell) {
    case Shell::Bash:
        return bashCompletions();
    case Shell::Zsh:
        return zshCompletions();
    case Shell::Fish:
        break;
    }
    return "# Completes folioforge-cli in fish.\n" + linesOf(fishLine);
}

} // namespace folioforge
