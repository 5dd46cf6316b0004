// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <QString>

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace folioforge {

// The tables of names that are more than a name tree of the same key.
inline constexpr const char *kDestinations = "/Dests"; ///< Also the names of the old dictionary.
inline constexpr const char *kAttachments = "/EmbeddedFiles";
inline constexpr const char *kFileNames = "/UF"; ///< Under which attachments are saved.

/// A name or a string, or the beginning of one that is longer than any writer's, of a thousand
/// bytes: a file may use a huge one, which stands in it once, in any number of places.
QPDFObjectHandle shortened(const QPDFObjectHandle &name);

/// The text of a name or a string, equal for those that readers take for the same: UTF-8, or the
/// bytes of what cannot be decoded. Shortened.
std::string nameText(const QPDFObjectHandle &name);

/// The names that a source has in the document that is made, by table.
struct GivenNames {
    std::map<std::string, std::set<std::string>> tables;
    std::string source;      ///< What the source is called in names that are told apart by it.
    std::size_t renamed = 0; ///< How many have become others.
};

/// The names that are taken in the document that is made.
class TakenNames {
  public:
    void add(const GivenNames &names);
    [[nodiscard]] bool contains(const std::string &table, const std::string &name) const;
    /// How many sources of that name have had to rename something.
    [[nodiscard]] int sourcesCalled(const std::string &source) const;

  private:
    std::map<std::string, std::set<std::string>> m_tables;
    std::map<std::string, int> m_sources;
};

/// Tells the names of one source apart from those that are taken: the "chapter1" of "b.pdf" becomes
/// "chapter1 (b)" where there is a "chapter1" already, and a file "data.xml" "data (b).xml". What
/// does not clash keeps its name.
class SourceNames {
  public:
    SourceNames(const TakenNames &taken, const QString &sourcePath);

    /// The source has `names` in `table`. To be called before renamed() for that table.
    void declare(const std::string &table, const std::vector<QPDFObjectHandle> &names);
    /// What `name`, a name or a string, is called in the document that is made. One that the source
    /// refers to without having it becomes one that nobody has.
    QPDFObjectHandle renamed(const std::string &table, const QPDFObjectHandle &name);
    /// The key of the next entry of a name tree: as renamed(), or a further name where an entry
    /// before it has that already.
    QPDFObjectHandle nextKey(const std::string &table, const QPDFObjectHandle &name);
    [[nodiscard]] const GivenNames &given() const { return m_given; }

  private:
    const std::string &give(const std::string &table, const std::string &name, bool clashes);
    std::string take(const std::string &table, const std::string &name, bool clashes);
    [[nodiscard]] std::string told(const std::string &table, const std::string &name,
                                   int number) const;

    const TakenNames &m_taken;
    GivenNames m_given;
    int m_number; ///< Of this source among those that are called the same, from 1.
    std::map<std::string, std::map<std::string, std::string>> m_renames; ///< By table.
    std::map<std::string, std::set<std::string>> m_keys;                 ///< Bytes, by table.
    std::map<std::pair<std::string, std::string>, int> m_numbers;        ///< The next to try.
};

} // namespace folioforge
