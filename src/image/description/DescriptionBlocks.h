// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

namespace folioforge {

class FileView;

/// What a picture's file holds that may describe it. Each is empty where it is missing.
struct DescriptionBlocks {
    QByteArray xmp;  ///< A packet.
    QByteArray iptc; ///< Data sets (IPTC-IIM 4.2).
    QByteArray exif; ///< The text of the tag ImageDescription.
    QString text;    ///< Of a PNG.
};

/// Reads them. Blocks of more than a megabyte are passed over.
DescriptionBlocks readDescriptionBlocks(const FileView &file);

} // namespace folioforge
