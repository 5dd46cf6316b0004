// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"

#include <QByteArray>
#include <QString>

namespace folioforge {

/// A file that a document is made of.
struct SourceOriginal {
    FileVersion file; ///< As it was when its pages were made.
    QString name;
    QByteArray type; ///< Its MIME type, such as "text/plain".
};

} // namespace folioforge
