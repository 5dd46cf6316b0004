// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "convert/ConversionOptions.h"

#include <QString>

namespace folioforge {

/// Path of the merged file: folder/name with ".pdf" where the name lacks it.
QString mergedFilePath(const ConversionOptions &options);

/// The first free path for the PDF of `fileName` in `folder`: name.pdf, name(1).pdf, ... A name
/// too long for the file system loses characters before the number.
QString singleFilePath(const QString &folder, const QString &fileName);

/// Whether `name` means a folder wherever it stands: "." and "..".
bool isNameOfFolder(const QString &name);

/// Whether `path` exists, also as a link to nothing.
bool isNameTaken(const QString &path);

} // namespace folioforge
