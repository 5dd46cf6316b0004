// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/ObjectTable.h"

#include <algorithm>

namespace folioforge {

namespace {

constexpr int kPlaceBytes = 8;
constexpr int kRestBytes = 4;

void append(std::string &bytes, qint64 value, int size) {
    constexpr int kBitsOfByte = 8;
    for (int i = size - 1; i >= 0; --i) {
        bytes += static_cast<char>(value >> (i * kBitsOfByte));
    }
}

/// The value of /Index: the first number and the length of each run of numbers.
std::string runs(const ObjectTable &table) {
    std::string text;
    for (auto place = table.begin(); place != table.end();) {
        const int first = place->first;
        int next = first;
        for (; place != table.end() && place->first == next; ++place) {
            ++next;
        }
        text += std::to_string(first) + ' ' + std::to_string(next - first) + ' ';
    }
    return text;
}

std::string packed(const ObjectTable &table, qint64 front) {
    std::string bytes;
    for (const auto &[number, place] : table) {
        const bool isPacked = place.collection > 0;
        bytes += isPacked ? '\2' : '\1';
        append(bytes, isPacked ? place.collection : front + place.offset, kPlaceBytes);
        append(bytes, isPacked ? place.index : place.generation, kRestBytes);
    }
    return bytes;
}

std::string stream(const std::string &keys, const std::string &data) {
    return "<< " + keys + " /Length " + std::to_string(data.size()) + " >>\nstream\n" + data +
           "\nendstream";
}

/// Objects that stand behind a file and in its table.
class AddedObjects {
  public:
    AddedObjects(ObjectTable table, AddedBytes &bytes, qint64 fileSize)
        : m_bytes(bytes)
        , m_before(fileSize + bytes.gap)
        , m_next(firstAddedNumber(table))
        , m_table(std::move(table)) {}

    /// Returns its number.
    int add(const std::string &body) {
        const int number = reserve();
        m_bytes.behind += std::to_string(number) + " 0 obj\n" + body + "\nendobj\n";
        return number;
    }
    /// Adds the table itself and what leads to it.
    void finish(int catalog) {
        const qint64 offset = end();
        const int number = reserve();
        const auto front = static_cast<qint64>(m_bytes.before.size());
        const std::string keys = "/Type /XRef /Size " + std::to_string(m_next) + " /W [1 " +
                                 std::to_string(kPlaceBytes) + ' ' + std::to_string(kRestBytes) +
                                 "] /Index [" + runs(m_table) + "] /Root " +
                                 std::to_string(catalog) + " 0 R";
        m_bytes.behind += std::to_string(number) + " 0 obj\n" +
                          stream(keys, packed(m_table, front)) + "\nendobj\nstartxref\n" +
                          std::to_string(front + offset) + "\n%%EOF\n";
    }

  private:
    /// Where the next object begins, as if the file's first byte had the offset 0.
    [[nodiscard]] qint64 end() const {
        return m_before + static_cast<qint64>(m_bytes.behind.size());
    }
    int reserve() {
        m_table[m_next] = {end(), 0, 0, 0};
        return m_next++;
    }

    AddedBytes &m_bytes;
    qint64 m_before;
    int m_next;
    ObjectTable m_table;
};

} // namespace

int firstAddedNumber(const ObjectTable &table) {
    return table.empty() ? 1 : table.rbegin()->first + 1;
}

qint64 gapFor(qint64 fileSize, qint64 size) {
    constexpr qint64 kBytesOfNumber = 3;
    return std::max<qint64>(0, kBytesOfNumber * size - fileSize);
}

AddedBytes addedTable(qint64 fileSize, const std::string &version, const ObjectTable &table,
                      const std::vector<std::string> &added) {
    constexpr qint64 kOwnObjects = 3; // The catalog, its page tree and the table.
    const qint64 size = firstAddedNumber(table) + std::ssize(added) + kOwnObjects;
    // The comment keeps empty lines at the beginning of the file apart: libqpdf 12.2 stumbles over
    // many that follow a header.
    AddedBytes bytes{"%PDF-" + version + "\n%\n", gapFor(fileSize, size), "\nendstream\nendobj\n"};
    AddedObjects objects(table, bytes, fileSize);
    for (const std::string &body : added) {
        objects.add(body);
    }
    const int pages = objects.add("<< /Type /Pages /Kids [] /Count 0 >>");
    objects.finish(objects.add("<< /Type /Catalog /Pages " + std::to_string(pages) + " 0 R >>"));
    return bytes;
}

} // namespace folioforge
