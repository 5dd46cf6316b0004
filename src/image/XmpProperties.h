// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace folioforge {

/// An XMP packet (ISO 16684-1) as text; nothing where it is in no encoding that XMP has, or would
/// take for ever to read.
std::optional<QString> xmpText(const QByteArray &packet);

/// Is handed a property of a packet: its namespace, its name, and its text or the items that it
/// lists. Of a text in several languages the one for all of them comes first.
using XmpVisitor =
    std::function<void(QStringView space, QStringView name, const QStringList &texts)>;

/// Hands over the properties of a packet. Of a damaged one it is those before the damage.
void forEachXmpProperty(const QString &packet, const XmpVisitor &visit);

} // namespace folioforge
