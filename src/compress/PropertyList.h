#pragma once

#include <QString>
#include <QVariantMap>

namespace folioforge {

/// The dictionary at the top of the XML or binary property list at `path`. Strings become QString,
/// booleans bool, whole numbers qint64, reals double, data QByteArray, dates QDateTime (UTC),
/// arrays QVariantList and dictionaries QVariantMap. Throws Error when the file cannot be read or
/// holds no dictionary.
QVariantMap readPropertyList(const QString &path);

} // namespace folioforge
