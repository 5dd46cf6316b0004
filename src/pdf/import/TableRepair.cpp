// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/TableRepair.h"

#include "error/Reasons.h"
#include "pdf/QpdfErrors.h"
#include "pdf/import/Entries.h"
#include "pdf/import/ObjectSearch.h"
#include "pdf/import/ObjectTable.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>

#include <algorithm>
#include <array>
#include <charconv>
#include <functional>
#include <map>
#include <optional>
#include <string_view>

namespace folioforge {

namespace {

/// The version that the header states; the lowest in use where there is none.
std::string versionOf(const FileVersion &file, SourceReader &reader) {
    constexpr std::string_view kMark = "%PDF-";
    constexpr std::size_t kLength = 3;
    std::array<char, 1024> bytes{}; // Where readers look for it.
    const std::string_view text(bytes.data(), reader.read(file, 0, bytes));
    const auto at = std::min(text.find(kMark), text.size());
    const auto version = text.substr(std::min(at + kMark.size(), text.size()), kLength);
    return isVersion(version) ? std::string(version) : "1.2";
}

/// The whole numbers with which `text` begins.
std::vector<int> numbersIn(std::string_view text) {
    std::vector<int> numbers;
    while (true) {
        text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n\f"), text.size()));
        int number = 0;
        const auto [end, error] = std::from_chars(text.begin(), text.end(), number);
        if (error != std::errc()) {
            return numbers;
        }
        numbers.push_back(number);
        text.remove_prefix(static_cast<std::size_t>(end - text.begin()));
    }
}

/// The numbers of the objects in an object stream; none where it cannot be read.
std::vector<int> numbersOfMembers(QPDFObjectHandle collection) {
    std::vector<int> members;
    try {
        const auto data = collection.getStreamData(qpdf_dl_specialized);
        const auto numbers =
            numbersIn({reinterpret_cast<const char *>(data->getBuffer()), data->getSize()});
        auto count = collection.getDict().getKey("/N");
        const auto stated = count.isInteger() ? std::max(count.getIntValue(), 0LL) : 0;
        for (std::size_t i = 0; i + 1 < numbers.size() && std::ssize(members) < stated; i += 2) {
            members.push_back(numbers[i]);
        }
    } catch (const QPDFExc &error) {
        if (isLackOfMemory(error)) {
            throw;
        }
        members.clear(); // Such as one that is encrypted.
    }
    return members;
}

/// Finds what a document's own table and trailer should have told.
class TableRepair {
  public:
    TableRepair(const FileVersion &file, const std::shared_ptr<SourceReader> &reader)
        : m_file(file)
        , m_reader(reader)
        , m_found(searchObjects(file, *reader)) {
        for (const FoundObject &object : m_found.objects) {
            m_table[object.number] = {object.offset, object.generation, 0, 0};
        }
        m_found.objects.clear();
        m_found.objects.shrink_to_fit();
    }

    std::unique_ptr<QPDF> open() {
        if (m_table.empty()) {
            throw trailerMissing();
        }
        if (!m_found.collections.empty()) {
            addMembers(*opened({}));
        }
        auto document = opened(trailers());
        const bool isOpen =
            withAllObjects(*document, *m_reader, [&] { return setTrailer(*document); });
        document->getWarnings(); // Of what stands behind trailers.
        return isOpen ? std::move(document) : nullptr;
    }

  private:
    static Error trailerMissing() {
        return Error(Reasons::tr(
            "The document is damaged: its trailer and its table of objects are missing"));
    }

    /// The file with the table as far as it is known, and further objects of the contents `added`.
    std::unique_ptr<QPDF> opened(const std::vector<std::string> &added) {
        auto document = std::make_unique<QPDF>();
        document->setSuppressWarnings(true);
        const std::string version = versionOf(m_file, *m_reader);
        return withAllObjects(*document, *m_reader, [&] {
            document->processInputSource(std::make_shared<SourceInput>(
                m_file, m_reader, addedTable(m_file.size, version, m_table, added)));
            return std::move(document);
        });
    }

    /// Adds the objects in object streams, where no later one of the same number stands in the
    /// file.
    void addMembers(QPDF &document) {
        for (const FoundObject &collection : m_found.collections) {
            auto stream = document.getObject(collection.number, collection.generation);
            if (!isCurrent(collection) || !stream.isStream()) {
                continue;
            }
            int index = 0;
            for (const int member : numbersOfMembers(stream)) {
                const auto known = m_table.find(member);
                if (member > 0 && member <= kMaxObjectNumber && member != collection.number &&
                    (known == m_table.end() || known->second.offset <= collection.offset)) {
                    m_table[member] = {collection.offset, 0, collection.number, index};
                }
                ++index;
            }
        }
    }

    /// Whether no later object has the same number.
    [[nodiscard]] bool isCurrent(const FoundObject &object) const {
        const ObjectPlace &place = m_table.at(object.number);
        return place.collection == 0 && place.offset == object.offset;
    }

    /// What stands behind the word of each trailer, the last ones of a file that has many.
    std::vector<std::string> trailers() {
        constexpr std::ptrdiff_t kMaxTrailers = 16;
        constexpr std::size_t kMaxLength = 16 << 10;
        auto &offsets = m_found.trailers;
        const auto skipped = std::ssize(offsets) - kMaxTrailers;
        offsets.erase(offsets.begin(), offsets.begin() + std::max<std::ptrdiff_t>(0, skipped));
        std::vector<std::string> texts;
        for (const qint64 offset : offsets) {
            std::string &text = texts.emplace_back(kMaxLength, '\0');
            text.resize(m_reader->read(m_file, offset, text));
        }
        return texts;
    }

    /// The trailers and what cross-reference streams have in their place, the last ones first.
    std::vector<QPDFObjectHandle> trailersIn(QPDF &document) {
        std::map<qint64, QPDFObjectHandle, std::greater<>> byPlace;
        int number = firstAddedNumber(m_table);
        for (const qint64 offset : m_found.trailers) {
            byPlace[offset] = document.getObject(number++, 0);
        }
        for (const FoundObject &table : m_found.tables) {
            auto stream = document.getObject(table.number, table.generation);
            if (isCurrent(table) && stream.isStream()) {
                byPlace[table.offset] = stream.getDict();
            }
        }
        std::vector<QPDFObjectHandle> trailers;
        for (auto &[offset, trailer] : byPlace) {
            if (trailer.isDictionary()) {
                trailers.push_back(trailer);
            }
        }
        return trailers;
    }

    /// The last catalog in the file, else one in an object stream; null where there is none.
    QPDFObjectHandle catalogIn(QPDF &document) {
        if (m_found.catalog) {
            return document.getObject(m_found.catalog->number, m_found.catalog->generation);
        }
        for (const auto &[number, place] : m_table) {
            auto object = document.getObject(number, 0);
            if (place.collection > 0 && object.isDictionaryOfType("/Catalog")) {
                return object;
            }
        }
        return QPDFObjectHandle::newNull();
    }

    /// Gives `document` the last trailer that leads to a catalog, or one that leads to the last
    /// catalog. False where the document is encrypted.
    bool setTrailer(QPDF &document) {
        auto target = document.getTrailer();
        const auto trailers = trailersIn(document);
        for (auto trailer : trailers) {
            if (trailer.hasKey("/Encrypt")) {
                return false;
            }
            if (trailer.getKey("/Root").isDictionary()) {
                for (const char *key : {"/Root", "/Info", "/ID"}) {
                    target.replaceKey(key, trailer.getKey(key));
                }
                return true;
            }
        }
        auto catalog = catalogIn(document);
        if (trailers.empty() && (m_found.hasSecurityHandler || !catalog.isDictionary())) {
            throw trailerMissing();
        }
        if (!catalog.isDictionary()) {
            throw Error(Reasons::tr("The document is damaged: it has no catalog"));
        }
        target.replaceKey("/Root", catalog);
        return true;
    }

    const FileVersion &m_file;
    const std::shared_ptr<SourceReader> &m_reader;
    FoundObjects m_found;
    ObjectTable m_table;
};

} // namespace

std::unique_ptr<QPDF> openBySearch(const FileVersion &file,
                                   const std::shared_ptr<SourceReader> &reader) {
    return TableRepair(file, reader).open();
}

} // namespace folioforge
