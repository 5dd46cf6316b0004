// SPDX-License-Identifier: Apache-2.0

#include "image/PdfImage.h"

#include "error/Reasons.h"
#include "image/ImageFormat.h"

#include <functional>
#include <numeric>
#include <optional>
#include <utility>

namespace folioforge {

namespace {

using OpenFile = std::shared_ptr<const SourceFile>;

/// Adds what a picture has of its file. Throws Error where that has changed.
void complete(PdfImage &image, const OpenFile &file, const ImageFormat &format) {
    file->requireUnchanged();
    image.header.kind = format.kind;
    if (!image.slices.empty()) {
        image.source = file;
    }
}

void leaveOut(const std::vector<FileSlice> &parts, PdfImage &image) {
    image.slices = slicesWithout(image.slices, parts);
    // A copy of the file's bytes begins as the file does.
    for (auto part = parts.rbegin(); part != parts.rend() && !image.data.isEmpty(); ++part) {
        image.data.remove(part->offset, part->length);
    }
}

/// Leaves out of the file's own bytes what no reader needs, where that is asked for.
void strip(PdfImage &image, const OpenFile &file, const ImageFormat &format,
           SourceMetadata metadata) {
    if (metadata == SourceMetadata::Strip && image.embeddedAs == EmbeddedAs::OwnBytes &&
        format.metadata != nullptr) {
        leaveOut(format.metadata(file->view()), image);
    }
}

PdfImage onlyPicture(const OpenFile &file, const ImageFormat &format, SourceMetadata metadata) {
    PdfImage image = format.toPdfImage(file->view());
    strip(image, file, format, metadata);
    complete(image, file, format);
    return image;
}

/// Takes the pictures of a file that may hold several.
class Pictures {
  public:
    Pictures(const OpenFile &file, const ImageFormat &format, SourceMetadata metadata,
             const std::function<void(PdfImage)> &take)
        : m_file(file)
        , m_format(format)
        , m_metadata(metadata)
        , m_take(take) {}

    Warnings takeAll() {
        const auto reader = m_format.readAll(m_file->view());
        while (takeNext(*reader)) {
        }
        if (m_taken == 0 && m_fault) {
            throw Error(*m_fault);
        }
        return warnings();
    }

  private:
    /// False behind the last one.
    bool takeNext(PictureReader &reader) {
        std::optional<PdfImage> image;
        ++m_page;
        try {
            image = reader.next();
        } catch (const Error &error) {
            m_file->requireNoFailure();
            warn(WarningCode::PictureDamaged,
                 Reasons::tr("It is left out: %1").arg(error.reason()));
            m_fault = m_fault ? m_fault : error;
            return true;
        }
        if (!image) {
            --m_page;
            return false;
        }
        m_pixels += qint64(image->width) * image->height;
        if (m_pixels > kMaxPixels) {
            warn(WarningCode::MorePictures,
                 Reasons::tr(
                     "It and those behind it are left out, since they are too large together"));
            return false;
        }
        for (const Warning &warning : std::exchange(image->warnings, {})) {
            warn(warning.code, warning.text);
        }
        strip(*image, m_file, m_format, m_metadata);
        complete(*image, m_file, m_format);
        m_take(std::move(*image));
        ++m_taken;
        return true;
    }

    void warn(WarningCode code, const QString &text) {
        m_warnings.push_back({m_page, {code, text}});
    }

    [[nodiscard]] Warnings warnings() const {
        Warnings all;
        for (const auto &[page, warning] : m_warnings) {
            all.push_back({warning.code,
                           m_page > 1
                               ? Reasons::tr("Page %1: %2").arg(QString::number(page), warning.text)
                               : warning.text});
        }
        return all;
    }

    /// A small file may name a large picture any number of times.
    static constexpr qint64 kMaxPixels = 20 * kMaxImagePixels;

    const OpenFile &m_file;
    const ImageFormat &m_format;
    SourceMetadata m_metadata;
    const std::function<void(PdfImage)> &m_take;
    std::vector<std::pair<int, Warning>> m_warnings; ///< With the number of their page.
    std::optional<Error> m_fault;                    ///< The first.
    qint64 m_pixels = 0;
    int m_page = 0; ///< From 1.
    int m_taken = 0;
};

} // namespace

qint64 sizeOf(const std::vector<FileSlice> &slices) {
    return std::transform_reduce(slices.begin(), slices.end(), qint64(0), std::plus<>(),
                                 [](const FileSlice &slice) { return slice.length; });
}

std::vector<FileSlice> slicesWithout(const std::vector<FileSlice> &slices,
                                     const std::vector<FileSlice> &parts) {
    std::vector<FileSlice> left;
    for (const FileSlice &slice : slices) {
        qint64 at = slice.offset;
        const qint64 end = at + slice.length;
        const auto keepUpTo = [&](qint64 next) {
            if (next > at) {
                left.push_back({at, next - at});
            }
        };
        for (const FileSlice &part : parts) {
            if (part.offset + part.length > at && part.offset < end) {
                keepUpTo(part.offset);
                at = part.offset + part.length;
            }
        }
        keepUpTo(end);
    }
    return left;
}

PdfImage toPdfImage(const QString &path, SystemCalls &calls, SourceMetadata metadata) {
    return readImageFile(path, calls, [metadata](const auto &file, const ImageFormat &format) {
        return onlyPicture(file, format, metadata);
    });
}

Warnings forEachPicture(const QString &path, SystemCalls &calls, SourceMetadata metadata,
                        const std::function<void(PdfImage)> &take) {
    return readImageFile(path, calls, [&](const auto &file, const ImageFormat &format) {
        if (format.readAll != nullptr) {
            return Pictures(file, format, metadata, take).takeAll();
        }
        PdfImage image = onlyPicture(file, format, metadata);
        Warnings warnings = std::exchange(image.warnings, {});
        take(std::move(image));
        return warnings;
    });
}

} // namespace folioforge
