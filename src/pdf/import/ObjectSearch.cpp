// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/ObjectSearch.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace folioforge {

namespace {

constexpr std::size_t kPiece = 1 << 20;
constexpr std::size_t kBefore = 128; ///< So far back is looked from a word,
constexpr std::size_t kBehind = 32;  ///< and so far ahead.

constexpr std::string_view kBlanks{" \t\r\n\f\0", 6};
constexpr std::string_view kLineEnds = "\r\n";
constexpr std::string_view kDigits = "0123456789";

/// The words that are looked for.
constexpr std::array<std::string_view, 7> kWords{"obj",      "trailer",   "/XRef",        "/ObjStm",
                                                 "/Catalog", "/Standard", "/Adobe.PubSec"};

/// Takes trailing characters of `set` off `text` and returns them.
std::string_view takeBack(std::string_view &text, std::string_view set) {
    const auto last = text.find_last_not_of(set);
    const auto length = last == std::string_view::npos ? 0 : last + 1;
    const std::string_view taken = text.substr(length);
    text.remove_suffix(taken.size());
    return taken;
}

/// Whether what stands before the value of a key ends with `key`.
bool isValueOf(std::string_view key, std::string_view before) {
    takeBack(before, kBlanks);
    return before.ends_with(key);
}

std::optional<int> numberIn(std::string_view digits, int limit) {
    int number = 0;
    const auto [end, error] = std::from_chars(digits.begin(), digits.end(), number);
    const bool isNumber = error == std::errc() && end == digits.end();
    return isNumber && number <= limit ? std::optional(number) : std::nullopt;
}

/// The object that begins at the end of `before`, where "obj" stands; its offset is in `before`.
std::optional<FoundObject> objectAfter(std::string_view before) {
    constexpr int kMaxGeneration = 65534;
    if (takeBack(before, kBlanks).empty()) {
        return std::nullopt; // Such as "endobj".
    }
    const auto generation = numberIn(takeBack(before, kDigits), kMaxGeneration);
    const bool isApart = !takeBack(before, kBlanks).empty();
    const auto number = numberIn(takeBack(before, kDigits), kMaxObjectNumber);
    if (!generation || !isApart || number.value_or(0) == 0) {
        return std::nullopt;
    }
    const auto offset = static_cast<qint64>(before.size());
    const std::string_view blanks = takeBack(before, kBlanks);
    const bool beginsLine = blanks.find_first_of(kLineEnds) != std::string_view::npos;
    return before.empty() || beginsLine || before.ends_with("endobj")
               ? std::optional(FoundObject{*number, *generation, offset})
               : std::nullopt;
}

/// Takes down what stands at the words that are found.
class Search {
  public:
    /// Looks at the words that begin in `text` at `from` and before `to`. `start` is the place of
    /// `text` in the file.
    void look(std::string_view text, std::size_t from, std::size_t to, qint64 start) {
        std::vector<std::pair<std::size_t, std::size_t>> places;
        for (std::size_t word = 0; word < kWords.size(); ++word) {
            for (auto at = text.find(kWords[word], from); at < to;
                 at = text.find(kWords[word], at + 1)) {
                places.emplace_back(at, word);
            }
        }
        std::ranges::sort(places);
        for (const auto &[at, word] : places) {
            note(kWords[word], text.substr(at < kBefore ? 0 : at - kBefore, std::min(at, kBefore)),
                 start + static_cast<qint64>(at));
        }
    }

    FoundObjects found() { return std::move(m_found); }

  private:
    /// `offset` is where `word` stands in the file, behind `before`.
    void note(std::string_view word, std::string_view before, qint64 offset) {
        if (word == "obj") {
            if (auto object = objectAfter(before)) {
                object->offset += offset - static_cast<qint64>(before.size());
                m_found.objects.push_back(*object);
            }
        } else if (word == "trailer") {
            m_found.trailers.push_back(offset + static_cast<qint64>(word.size()));
        } else if (word == "/Standard" || word == "/Adobe.PubSec") {
            m_found.hasSecurityHandler = m_found.hasSecurityHandler || isValueOf("/Filter", before);
        } else if (!m_found.objects.empty() && isValueOf("/Type", before)) {
            noteType(word, m_found.objects.back());
        }
    }

    void noteType(std::string_view type, const FoundObject &object) {
        if (type == "/Catalog") {
            m_found.catalog = object;
            return;
        }
        auto &streams = type == "/XRef" ? m_found.tables : m_found.collections;
        if (streams.empty() || streams.back().offset != object.offset) {
            streams.push_back(object);
        }
    }

    FoundObjects m_found;
};

} // namespace

FoundObjects searchObjects(const FileVersion &file, SourceReader &reader) {
    Search search;
    std::string text;
    qint64 start = 0;     // Of the text in the file.
    std::size_t from = 0; // Where in the text nothing has been looked at yet.
    while (true) {
        const std::size_t kept = text.size();
        text.resize(kept + kPiece);
        const qint64 offset = start + static_cast<qint64>(kept);
        text.resize(kept + reader.read(file, offset, std::span(text).subspan(kept)));
        const bool isEnd = text.size() == kept;
        const std::size_t to =
            isEnd ? text.size() : std::max(from, text.size() - std::min(text.size(), kBehind));
        search.look(text, from, to, start);
        if (isEnd) {
            return search.found();
        }
        const std::size_t done = to - std::min(to, kBefore);
        text.erase(0, done);
        start += static_cast<qint64>(done);
        from = to - done;
    }
}

} // namespace folioforge
