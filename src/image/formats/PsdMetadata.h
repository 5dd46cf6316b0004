// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"
#include "image/PdfImage.h"

#include <QByteArray>

namespace folioforge {

/// What the channel after the colours of a merged image is.
enum class PsdAlpha {
    None,
    Straight, ///< Opacity beside colours as they are.
    OnWhite,  ///< Opacity of colours that were composited on white.
};

/// What a Photoshop document says before its pixels (Adobe Photoshop File Formats Specification).
struct PsdMetadata {
    ImageHeader header;
    bool isBig = false; ///< A PSB file: some lengths take twice the bytes.
    int channels = 0;
    int depth = 8; ///< Bits per sample in the file: 1, 8, 16 or 32.
    ImageColor color = ImageColor::Rgb;
    PsdAlpha alpha = PsdAlpha::None;
    int transparentIndex = -1; ///< Of the palette; -1 for none.
    bool hasLayers = false;
    bool statesNoMergedImage = false; ///< Written without one to save room: it is blank.
    QByteArray colorModeData;
    QByteArray iccProfile;
    qint64 pixelsOffset = 0; ///< Byte at which the merged image begins.

    /// Bits per sample once read: 32-bit light becomes 16-bit samples.
    [[nodiscard]] int sampleBits() const { return depth == 32 ? 16 : depth; }
};

/// The resources that stand before the pixels. Throws Error when the file ends before them.
QByteArray readPsdResources(const FileView &file);

/// Reads everything before the pixels. Throws Error when the file is damaged or of a colour mode
/// that has no picture.
PsdMetadata readPsdMetadata(const FileView &file);

} // namespace folioforge
