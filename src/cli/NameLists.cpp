// SPDX-License-Identifier: Apache-2.0

#include "cli/Arguments.h"
#include "cli/OptionValues.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

QByteArray contentsOfList(const QByteArray &name) {
    if (name != "-" && QFileInfo(QFile::decodeName(name)).isDir()) {
        throw ArgumentFault(
            u"--files-from: \"%1\" is a folder, not a list of names; a folder is an input itself"_s
                .arg(QString::fromUtf8(name)));
    }
    return contentsOf(name, "--files-from"_L1);
}

/// The names of `list`: lines, also such as Windows writes, or what ends in null bytes.
std::vector<QByteArray> namesIn(const NameList &list, bool endInNull) {
    const QByteArray contents = contentsOfList(list.file);
    if (!endInNull && contents.contains('\0')) {
        throw ArgumentFault(
            u"--files-from: \"%1\" holds null bytes; -0 reads names that end in them"_s.arg(
                QString::fromUtf8(list.file)));
    }
    std::vector<QByteArray> names;
    for (const QByteArray &name : endInNull ? contents.split('\0') : linesIn(contents)) {
        if (!name.isEmpty()) {
            names.push_back(name);
        }
    }
    return names;
}

/// Keeps the choices at their inputs when `count` more are put in before the one at `at`.
void moveChoices(std::map<std::size_t, PageChoice> &choices, std::size_t at, std::size_t count) {
    std::map<std::size_t, PageChoice> moved;
    for (const auto &[position, choice] : choices) {
        moved.emplace(position + (position >= at ? count : 0), choice);
    }
    choices = std::move(moved);
}

} // namespace

QStringList readBookmarkTitles(const Arguments &arguments) {
    if (!arguments.bookmarkTitleFile) {
        return {};
    }
    QStringList titles;
    for (const QString &line :
         textContentsOf(*arguments.bookmarkTitleFile, "--bookmark-titles"_L1).split(u'\n')) {
        titles += line.trimmed();
    }
    return titles;
}

void requireOneReading(const Arguments &arguments) {
    const bool isPassword = arguments.userPasswordFile == "-" || arguments.ownerPasswordFile == "-";
    const auto readings = std::ranges::count(arguments.nameLists, "-", &NameList::file) +
                          std::ranges::count(arguments.inputs, "-") + (isPassword ? 1 : 0) +
                          (arguments.inputPasswordFile == "-" ? 1 : 0) +
                          (arguments.bookmarkTitleFile == "-" ? 1 : 0) +
                          (arguments.altFile == "-" ? 1 : 0) +
                          (arguments.archive.inkProfileFile == "-" ? 1 : 0);
    if (readings > 1) {
        throw ArgumentFault(u"Standard input cannot be read twice"_s);
    }
}

void readNameLists(Arguments &arguments) {
    // From the last, so that the places of those before it stay.
    for (auto list = arguments.nameLists.rbegin(); list != arguments.nameLists.rend(); ++list) {
        const auto names = namesIn(*list, arguments.listsEndInNull);
        const auto at = arguments.inputs.begin() + static_cast<std::ptrdiff_t>(list->at);
        arguments.inputs.insert(at, names.begin(), names.end());
        moveChoices(arguments.pageChoices, list->at, names.size());
    }
    if (!arguments.inputType.isEmpty() && std::ranges::count(arguments.inputs, "-") == 0) {
        throw ArgumentFault(
            u"--input-type says what standard input is, and \"-\" is none of the inputs"_s);
    }
    requireOneReading(arguments);
}

} // namespace folioforge
