// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace folioforge {

/// The page at `page`, from 0, of the PDF at `path` as a PDF of its own in which form fields are
/// part of the page: Qt's PDF module draws none. Nothing where the PDF has no form, or cannot be
/// read with `password`.
std::optional<QByteArray> pageWithFields(const QString &path, int page, const QByteArray &password);

} // namespace folioforge
