// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "convert/ConversionOptions.h"

#include <QString>

#include <functional>

namespace folioforge {

/// Path of the merged file: folder/name with ".pdf" where the name lacks it.
QString mergedFilePath(const ConversionOptions &options);

/// Whether `path` exists, also as a link to nothing.
bool isNameTaken(const QString &path);

/// Path of the PDF of `fileName`, or of the one that the options merge into or look at.
QString outputPath(const ConversionOptions &options, const QString &fileName,
                   const std::function<bool(const QString &)> &isTaken = isNameTaken);

/// The first free path for the PDF of `fileName` in `folder`: name.pdf, name(1).pdf, ... A name
/// too long for the file system loses characters before the number. `isTaken` says what is not
/// free.
QString singleFilePath(const QString &folder, const QString &fileName,
                       const std::function<bool(const QString &)> &isTaken = isNameTaken);

/// Whether `name` means a folder wherever it stands: "." and "..".
bool isNameOfFolder(const QString &name);

} // namespace folioforge
