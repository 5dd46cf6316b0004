#include "compress/PropertyList.h"

#include "error/Error.h"

#include <QDateTime>
#include <QFile>
#include <QTimeZone>

#include <plist/plist.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// More than any list of the bundle has, and so few that libplist, which calls itself for each
/// level, can only be led so deep.
constexpr qint64 kMaxBytes = 16 << 10;
constexpr int kMaxDepth = 64;

struct FreePlist {
    void operator()(void *node) const { plist_free(node); }
};
using Plist = std::unique_ptr<std::remove_pointer_t<plist_t>, FreePlist>;

struct FreeMemory {
    void operator()(void *memory) const { std::free(memory); }
};

Error noPropertyList(const QString &path) {
    return Error(u"%1 is no valid property list"_s.arg(path));
}

/// Null where the bytes are no list.
Plist parsed(const char *bytes, qint64 size) {
    plist_t root = nullptr;
    plist_from_memory(bytes, static_cast<quint32>(size), &root);
    return Plist(root);
}

/// The list as XML has it. Binary keys may hold a zero, and libplist ends the program when it is
/// asked for such a one.
Plist withoutZeros(const Plist &list) {
    if (!list) {
        return {};
    }
    char *xml = nullptr;
    quint32 size = 0;
    plist_to_xml(list.get(), &xml, &size);
    const std::unique_ptr<char, FreeMemory> owner(xml);
    return xml ? parsed(xml, size) : Plist();
}

QVariant toVariant(plist_t node, int depth);

QString stringOf(plist_t node) {
    std::uint64_t length = 0;
    const char *text = plist_get_string_ptr(node, &length);
    return QString::fromUtf8(text, static_cast<qsizetype>(length));
}

QByteArray dataOf(plist_t node) {
    std::uint64_t length = 0;
    const char *bytes = plist_get_data_ptr(node, &length);
    return {bytes, static_cast<qsizetype>(length)};
}

QDateTime dateOf(plist_t node) {
    qint32 seconds = 0;
    qint32 microseconds = 0;
    plist_get_date_val(node, &seconds, &microseconds);
    const QDateTime epoch(QDate(2001, 1, 1), QTime(0, 0), QTimeZone::utc());
    return epoch.addSecs(seconds).addMSecs(microseconds / 1000);
}

QVariantList listOf(plist_t node, int depth) {
    QVariantList list;
    const quint32 size = plist_array_get_size(node);
    for (quint32 i = 0; i < size; ++i) {
        list += toVariant(plist_array_get_item(node, i), depth + 1);
    }
    return list;
}

QVariantMap mapOf(plist_t node, int depth) {
    QVariantMap map;
    plist_dict_iter cursor = nullptr;
    plist_dict_new_iter(node, &cursor);
    const std::unique_ptr<void, FreeMemory> owner(cursor);
    for (;;) {
        char *key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(node, cursor, &key, &value);
        const std::unique_ptr<char, FreeMemory> keyOwner(key);
        if (!key || !value) {
            return map;
        }
        map.insert(QString::fromUtf8(key), toVariant(value, depth + 1));
    }
}

QVariant toVariant(plist_t node, int depth) {
    if (depth > kMaxDepth) {
        return {};
    }
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        quint8 value = 0;
        plist_get_bool_val(node, &value);
        return value != 0;
    }
    case PLIST_UINT: {
        std::uint64_t value = 0;
        plist_get_uint_val(node, &value);
        return static_cast<qint64>(value);
    }
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return value;
    }
    case PLIST_STRING:
        return stringOf(node);
    case PLIST_DATA:
        return dataOf(node);
    case PLIST_DATE:
        return dateOf(node);
    case PLIST_ARRAY:
        return listOf(node, depth);
    case PLIST_DICT:
        return mapOf(node, depth);
    default:
        return {};
    }
}

} // namespace

QVariantMap readPropertyList(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw Error(u"%1 cannot be read: %2"_s.arg(path, file.errorString()));
    }
    if (file.size() > kMaxBytes) {
        throw noPropertyList(path);
    }
    const QByteArray bytes = file.readAll();
    const Plist root = withoutZeros(parsed(bytes.constData(), bytes.size()));
    if (!root || plist_get_node_type(root.get()) != PLIST_DICT) {
        throw noPropertyList(path);
    }
    return mapOf(root.get(), 0);
}

} // namespace folioforge
