// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Error.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>

namespace folioforge {

class FileView;

/// What a picture's file holds that may describe it: the first block of each kind. Nothing or
/// empty where there is none, and empty where that is damaged.
struct DescriptionBlocks {
    std::optional<QByteArray> xmp;  ///< A packet.
    std::optional<QByteArray> iptc; ///< Data sets (IPTC-IIM 4.2).
    std::optional<QByteArray> exif; ///< The text of the tag ImageDescription.
    std::optional<QString> text;    ///< Of a PNG.
};

/// Longer blocks are passed over, or cut where they come piece by piece.
inline constexpr qint64 kMaxDescriptionBytes = 1 << 20;

/// Fills `block` with what `read` gives where it is the first of its kind. An Error that `read`
/// throws ends there: another block may be whole.
template<typename Block, typename Read>
void takeFirst(std::optional<Block> &block, const Read &read) {
    if (!block) {
        block.emplace();
        try {
            *block = read();
        } catch (const Error &) {
            block->clear();
        }
    }
}

/// The text of the tag ImageDescription of an EXIF block. Throws Error.
QByteArray descriptionInExif(QByteArrayView block);

/// Those of the resources of Photoshop.
void addPhotoshopBlocks(QByteArrayView resources, DescriptionBlocks &blocks);

// Those of a file of each format. Throw Error where the file is damaged between them.
void addJpegBlocks(const FileView &file, DescriptionBlocks &blocks);
void addJpeg2000Blocks(const FileView &file, DescriptionBlocks &blocks);
void addPngBlocks(const FileView &file, DescriptionBlocks &blocks);
void addPsdBlocks(const FileView &file, DescriptionBlocks &blocks);
void addTiffBlocks(const FileView &file, DescriptionBlocks &blocks);
void addWebpBlocks(const FileView &file, DescriptionBlocks &blocks);

} // namespace folioforge
