// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/SourceNames.h"

#include <QByteArrayView>
#include <QFileInfo>

namespace folioforge {

namespace {

/// What cannot be decoded reads as this.
constexpr const char *kReplacement = "\xEF\xBF\xBD";

/// Bytes of a name. Even, so that no unit of UTF-16 is cut in two.
constexpr std::size_t kMaxNameLength = 1000;

/// A file's name without its extension, short enough to become a part of another file's.
std::string shortName(const QString &path) {
    constexpr qsizetype kMaxLength = 60;
    return QFileInfo(path).completeBaseName().simplified().left(kMaxLength).toStdString();
}

/// Where a name is extended: files keep their extension.
std::size_t endOfStem(const std::string &table, const std::string &name) {
    const auto dot = name.rfind('.');
    const bool isFile = table == kAttachments || table == kFileNames;
    return isFile && dot != std::string::npos && dot > 0 ? dot : name.size();
}

/// `text`, as nameText() gives it, as an object of the kind of `name`.
QPDFObjectHandle called(const std::string &text, QPDFObjectHandle name) {
    if (name.isName()) {
        return QPDFObjectHandle::newName('/' + text);
    }
    return QByteArrayView(text).isValidUtf8() ? QPDFObjectHandle::newUnicodeString(text)
                                              : QPDFObjectHandle::newString(text);
}

} // namespace

QPDFObjectHandle shortened(const QPDFObjectHandle &name) {
    QPDFObjectHandle whole = name;
    const std::string bytes = whole.isName() ? whole.getName() : whole.getStringValue();
    if (bytes.size() <= kMaxNameLength) {
        return whole;
    }
    const std::string beginning = bytes.substr(0, kMaxNameLength);
    return whole.isName() ? QPDFObjectHandle::newName(beginning)
                          : QPDFObjectHandle::newString(beginning);
}

std::string nameText(const QPDFObjectHandle &name) {
    auto used = shortened(name);
    if (used.isName()) {
        return used.getName().substr(1);
    }
    std::string text = used.getUTF8Value();
    return text.find(kReplacement) == std::string::npos ? text : used.getStringValue();
}

void TakenNames::add(const GivenNames &names) {
    for (const auto &[table, given] : names.tables) {
        m_tables[table].insert(given.begin(), given.end());
    }
    if (names.renamed > 0) {
        ++m_sources[names.source];
    }
}

bool TakenNames::contains(const std::string &table, const std::string &name) const {
    const auto names = m_tables.find(table);
    return names != m_tables.end() && names->second.contains(name);
}

int TakenNames::sourcesCalled(const std::string &source) const {
    const auto found = m_sources.find(source);
    return found == m_sources.end() ? 0 : found->second;
}

SourceNames::SourceNames(const TakenNames &taken, const QString &sourcePath)
    : m_taken(taken) {
    m_given.source = shortName(sourcePath);
    m_number = taken.sourcesCalled(m_given.source) + 1;
}

void SourceNames::declare(const std::string &table, const std::vector<QPDFObjectHandle> &names) {
    if (names.empty()) {
        return;
    }
    std::set<std::string> own;
    for (const auto &name : names) {
        own.insert(nameText(name));
    }
    // First all of them, so that none is renamed to another.
    m_given.tables[table].insert(own.begin(), own.end());
    for (const std::string &name : own) {
        give(table, name, m_taken.contains(table, name));
    }
}

QPDFObjectHandle SourceNames::renamed(const std::string &table, const QPDFObjectHandle &name) {
    const std::string text = nameText(name);
    const auto &renames = m_renames[table];
    const auto known = renames.find(text);
    const std::string &unique =
        known != renames.end()
            ? known->second
            : give(table, text,
                   m_taken.contains(table, text) || m_given.tables[table].contains(text));
    return unique == text ? shortened(name).shallowCopy() : called(unique, name);
}

QPDFObjectHandle SourceNames::nextKey(const std::string &table, const QPDFObjectHandle &name) {
    auto key = renamed(table, name);
    return m_keys[table].insert(key.getStringValue()).second
               ? key
               : called(take(table, nameText(name), true), name);
}

const std::string &SourceNames::give(const std::string &table, const std::string &name,
                                     bool clashes) {
    return m_renames[table].emplace(name, take(table, name, clashes)).first->second;
}

std::string SourceNames::take(const std::string &table, const std::string &name, bool clashes) {
    std::set<std::string> &names = m_given.tables[table];
    std::string unique = name;
    while (clashes) {
        int &number = m_numbers.try_emplace({table, name}, m_number).first->second;
        unique = told(table, name, number++);
        clashes = m_taken.contains(table, unique) || names.contains(unique);
    }
    names.insert(unique);
    // The keys of attachments are not what anybody sees.
    m_given.renamed += unique != name && table != kAttachments ? 1 : 0;
    return unique;
}

std::string SourceNames::told(const std::string &table, const std::string &name, int number) const {
    const auto end = endOfStem(table, name);
    const std::string label =
        number == 1 ? m_given.source : m_given.source + ' ' + std::to_string(number);
    return name.substr(0, end) + " (" + label + ')' + name.substr(end);
}

} // namespace folioforge
