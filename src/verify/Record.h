// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"
#include "image/PdfImage.h"
#include "pdf/PageChoice.h"
#include "verify/TextTrace.h"

#include <QByteArray>
#include <QRectF>
#include <QSizeF>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace folioforge {

/// What a picture in a PDF has to be: all of it but its data, and by what these are known.
struct ImageRecord {
    int width = 0;  ///< Pixels.
    int height = 0; ///< Pixels.
    int bitsPerComponent = 8;
    ImageColor color = ImageColor::Rgb;
    ImageFilter filter = ImageFilter::Flate;
    bool isOwnBytes = false; ///< The file's own bytes, as a whole or with a little around them.
    bool isPlainRgb = false;
    bool isPredicted = false; ///< Rows have filter numbers.
    int ccittK = -1;
    bool ccittBlackIs1 = false;
    bool hasFilteredRows = false; ///< `checksum` is of rows with their filter numbers.
    bool isUnpacked = false;      ///< `checksum` is of samples, else of the compressed data.
    quint64 checksum = 0;         ///< Where there are no slices.
    std::optional<quint64> profile;
    QByteArray palette;
    std::vector<double> decode;
    FileVersion source; ///< Of the slices.
    std::vector<FileSlice> slices;
    std::shared_ptr<const ImageRecord> softMask;
};

/// The record of `image`.
ImageRecord recordOf(const PdfImage &image);

/// A page with one picture; lengths in points from its lower left corner.
struct PictureRecord {
    QSizeF page;
    QRectF place;
    int orientation = 1;        ///< As EXIF counts.
    std::optional<QRectF> clip; ///< Nothing of the picture is shown beyond it.
    ImageRecord image;
};

/// The pages of a text.
struct TextRecord {
    QSizeF page;         ///< Points.
    double fontSize = 0; ///< Points.
    std::vector<TextTrace> pages;
    std::vector<TextTrace>
        margins; ///< Headers and footers, for each page; none where there are none.
};

/// The pages that were taken from a PDF.
struct SourceRecord {
    QString path;
    PageChoice choice;
};

/// What the pages of an entry have to show. It is made while they are drawn, and small, since long
/// documents have many pages.
struct EntryRecord {
    int firstPage = 0; ///< Of the document, from 0.
    int pages = 0;
    TextRecord text;                     ///< Of a text.
    std::vector<PictureRecord> pictures; ///< A page each; of a picture file.
    std::optional<SourceRecord> source;  ///< Of a PDF.
    /// Read the file again where a page looks otherwise: its pictures, which are given one after
    /// another, and its text. For a document that others may have made; else null. They throw
    /// Error.
    std::function<void(const std::function<void(PdfImage)> &)> picturesAgain;
    std::function<QString()> textAgain;
};

/// What a document has to show, entry by entry.
using DocumentRecord = std::vector<EntryRecord>;

} // namespace folioforge
