// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Error.h"
#include "error/Reasons.h"
#include "files/SourceFile.h"
#include "image/ImageHeader.h"
#include "image/PdfImage.h"

#include <QByteArrayView>
#include <QLatin1StringView>

#include <memory>
#include <new>
#include <optional>
#include <vector>

namespace folioforge {

struct DescriptionBlocks;

/// Reads the pictures of a file, one after another.
class PictureReader {
  public:
    PictureReader() = default;
    PictureReader(const PictureReader &) = delete;
    PictureReader &operator=(const PictureReader &) = delete;
    virtual ~PictureReader() = default;

    /// The next picture with its header; nothing behind the last. Throws Error where it cannot be
    /// read; the call after that gives the one behind it.
    virtual std::optional<PdfImage> next() = 0;
};

/// One image format: how its files are recognised and the two ways to read them. A new format is
/// one source file, one function in formats/Formats.h and one row of the table in ImageFormat.cpp.
struct ImageFormat {
    ImageKind kind;
    /// Lower-case extensions that stand for the format where the bytes do not tell it.
    std::vector<QLatin1StringView> extensions;
    /// Whether the first bytes of a file (at most kSniffedBytes) are those of this format; null for
    /// a format without a signature.
    bool (*recognises)(QByteArrayView head);
    /// Reads the header alone, as checkedHeader() gives it. Throws Error.
    ImageHeader (*readHeader)(const FileView &file);
    /// Reads the image together with its header. Throws Error.
    PdfImage (*toPdfImage)(const FileView &file);
    /// Which parts of a file whose own bytes go into the PDF no reader needs, in order; null where
    /// nothing but the compressed picture goes in.
    std::vector<FileSlice> (*metadata)(const FileView &file) = nullptr;
    /// Reads every picture of the file, the first as toPdfImage() does but for the warning of those
    /// behind it; null where one alone becomes a page. Throws Error.
    std::unique_ptr<PictureReader> (*readAll)(const FileView &file) = nullptr;
    /// Adds what the file holds that may say what there is to see; null where nothing is looked
    /// for. Throws Error.
    void (*describe)(const FileView &file, DescriptionBlocks &blocks) = nullptr;
};

/// Bytes at the start of a file by which formats recognise it.
inline constexpr qint64 kSniffedBytes = 64;

/// The format of the file: by content where a format recognises it, by the extension of its name
/// otherwise. Throws Error when neither tells.
const ImageFormat &formatOf(const FileView &file);

/// What `read(file, format)` gives of the image file at `path`, which stays open as long as a copy
/// of the pointer `file` lives. Throws Error, also where there is not enough memory.
template<typename Read>
auto readImageFile(const QString &path, SystemCalls &calls, const Read &read) {
    try {
        const auto file = std::make_shared<const SourceFile>(SourceFile::open(path, calls));
        auto result = read(file, formatOf(file->view()));
        file->requireNoFailure(); // A decoder may have taken it for the end of the file.
        return result;
    } catch (const std::bad_alloc &) {
        throw Error(Reasons::tr("There is not enough memory for the image"));
    }
}

} // namespace folioforge
