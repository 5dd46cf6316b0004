#pragma once

#include "convert/ConversionOptions.h"

#include <QString>

namespace folioforge {

/// Path of the merged file: folder/name with ".pdf" where the name lacks it.
QString mergedFilePath(const ConversionOptions &options);

/// The first free path for the PDF of `fileName` in `folder`: name.pdf, name(1).pdf, ... A name
/// that the file system would find too long loses characters before the number.
QString singleFilePath(const QString &folder, const QString &fileName);

/// Whether something stands under `path`, be it a link that leads nowhere.
bool isNameTaken(const QString &path);

} // namespace folioforge
