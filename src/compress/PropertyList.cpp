// SPDX-License-Identifier: Apache-2.0

#include "compress/PropertyList.h"

#include "error/Error.h"
#include "error/Reasons.h"

#include <QDateTime>
#include <QFile>
#include <QXmlStreamReader>

#include <optional>

namespace folioforge {

namespace {

/// More than any list of the bundle has.
constexpr qint64 kMaxBytes = 16 << 10;
constexpr int kMaxDepth = 64;

template<typename Value> std::optional<QVariant> valueIf(bool isValid, const Value &value) {
    return isValid ? std::optional<QVariant>(value) : std::nullopt;
}

/// The value that `text` in an element of the name `kind` stands for; nothing where it is none.
std::optional<QVariant> valueOf(const QString &kind, const QString &text) {
    bool isNumber = false;
    if (kind == u"string") {
        return text;
    }
    if (kind == u"integer") {
        const qint64 number = text.toLongLong(&isNumber);
        return valueIf(isNumber, number);
    }
    if (kind == u"real") {
        const double number = text.toDouble(&isNumber);
        return valueIf(isNumber, number);
    }
    if (kind == u"date") {
        const QDateTime date = QDateTime::fromString(text, Qt::ISODate);
        return valueIf(date.isValid(), date);
    }
    return valueIf(kind == u"data", QByteArray::fromBase64(text.toLatin1()));
}

/// Reads values element by element. Each function begins behind a start tag and ends behind its end
/// tag; what is no property list becomes an error of the XML reader.
class ListReader {
  public:
    explicit ListReader(QIODevice *device)
        : m_xml(device) {}

    /// The dictionary of the whole file; nothing where it holds none.
    std::optional<QVariantMap> whole() {
        expect(u"plist");
        expect(u"dict");
        const QVariantMap map = dictionary(0);
        while (!m_xml.atEnd()) {
            m_xml.readNext();
        }
        return m_xml.hasError() ? std::nullopt : std::optional(map);
    }

  private:
    void expect(QStringView name) {
        if (!m_xml.readNextStartElement() || m_xml.name() != name) {
            m_xml.raiseError();
        }
    }

    QVariant value(int depth) {
        const QString kind = m_xml.name().toString();
        if (depth > kMaxDepth) {
            m_xml.raiseError();
            return {};
        }
        if (kind == u"dict") {
            return dictionary(depth + 1);
        }
        if (kind == u"array") {
            return list(depth + 1);
        }
        const QString text = m_xml.readElementText();
        if (kind == u"true" || kind == u"false") {
            return kind == u"true";
        }
        const auto value = valueOf(kind, text);
        if (!value) {
            m_xml.raiseError();
        }
        return value.value_or(QVariant());
    }

    QVariantList list(int depth) {
        QVariantList list;
        while (m_xml.readNextStartElement()) {
            list += value(depth);
        }
        return list;
    }

    QVariantMap dictionary(int depth) {
        QVariantMap map;
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() != u"key") {
                m_xml.raiseError();
                break;
            }
            const QString key = m_xml.readElementText();
            if (!m_xml.readNextStartElement()) {
                m_xml.raiseError();
                break;
            }
            map.insert(key, value(depth));
        }
        return map;
    }

    QXmlStreamReader m_xml;
};

} // namespace

QVariantMap readPropertyList(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw Error(Reasons::tr("%1 cannot be read: %2").arg(path, file.errorString()));
    }
    if (file.peek(6) == "bplist") {
        throw Error(Reasons::tr("%1 is a binary property list; only XML can be read").arg(path));
    }
    const auto list = file.size() <= kMaxBytes ? ListReader(&file).whole() : std::nullopt;
    if (!list) {
        throw Error(Reasons::tr("%1 is no valid property list").arg(path));
    }
    return *list;
}

} // namespace folioforge
