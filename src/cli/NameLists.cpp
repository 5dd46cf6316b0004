// SPDX-License-Identifier: Apache-2.0

#include "cli/Arguments.h"
#include "cli/OptionValues.h"

#include <QFile>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

QByteArray contentsOf(const QByteArray &name) {
    QFile file(QFile::decodeName(name));
    const bool isOpen =
        name == "-" ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    QByteArray contents = isOpen ? file.readAll() : QByteArray();
    if (file.error() != QFileDevice::NoError) {
        throw ArgumentFault(u"The list of files \"%1\" cannot be read: %2"_s.arg(
            QString::fromUtf8(name), file.errorString()));
    }
    return contents;
}

std::vector<QByteArray> namesIn(const QByteArray &list, char end) {
    std::vector<QByteArray> names;
    for (const QByteArray &name : list.split(end)) {
        if (!name.isEmpty()) {
            names.push_back(name);
        }
    }
    return names;
}

} // namespace

void readNameLists(Arguments &arguments) {
    const auto ofLists = std::ranges::count(arguments.nameLists, "-", &NameList::file);
    // From the last, so that the places of those before it stay.
    for (auto list = arguments.nameLists.rbegin(); list != arguments.nameLists.rend(); ++list) {
        const auto names = namesIn(contentsOf(list->file), arguments.listsEndInNull ? '\0' : '\n');
        const auto at = arguments.inputs.begin() + static_cast<std::ptrdiff_t>(list->at);
        arguments.inputs.insert(at, names.begin(), names.end());
    }
    const bool isPassword = arguments.userPasswordFile == "-" || arguments.ownerPasswordFile == "-";
    if (ofLists + std::ranges::count(arguments.inputs, "-") + (isPassword ? 1 : 0) > 1) {
        throw ArgumentFault(u"Standard input cannot be read twice"_s);
    }
}

} // namespace folioforge
