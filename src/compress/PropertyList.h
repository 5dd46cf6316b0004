// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QVariantMap>

namespace folioforge {

/// The dictionary at the top of the XML property list at `path`. Strings become QString, booleans
/// bool, whole numbers qint64, reals double, data QByteArray, dates QDateTime (UTC), arrays
/// QVariantList and dictionaries QVariantMap. Throws Error when the file cannot be read, is in the
/// binary form, holds no dictionary, or is larger or deeper than the lists of a bundle are.
QVariantMap readPropertyList(const QString &path);

} // namespace folioforge
