// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "image/Bytes.h"
#include "image/MorePictures.h"
#include "image/PictureDamage.h"
#include "image/formats/ArgbImage.h"

#include <gif_lib.h>

#include <algorithm>
#include <array>
#include <memory>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

constexpr Argb kTransparent = 0x00FFFFFF;

/// A GIF file opened with giflib over a view.
class GifFile {
  public:
    explicit GifFile(const FileView &file)
        : m_state(new State{file, 0, {}, 0})
        , m_handle(DGifOpen(m_state.get(), read, nullptr)) {
        if (!m_handle) {
            fail();
        }
    }

    [[nodiscard]] GifFileType *operator->() const { return m_handle.get(); }
    [[nodiscard]] GifFileType *handle() const { return m_handle.get(); }

    /// Goes to the first picture and returns the number of its transparent colour, -1 for none.
    int goToPicture() const {
        int transparent = NO_TRANSPARENT_COLOR;
        for (;;) {
            GifRecordType type = UNDEFINED_RECORD_TYPE;
            require(DGifGetRecordType(handle(), &type));
            if (type == IMAGE_DESC_RECORD_TYPE) {
                require(DGifGetImageDesc(handle()));
                return transparent;
            }
            if (type == TERMINATE_RECORD_TYPE) {
                throw Error(u"The file holds no image"_s);
            }
            readExtension(transparent);
        }
    }

    /// The pictures behind the current one, whose rows have been read.
    [[nodiscard]] qint64 countFurtherPictures() const {
        qint64 pictures = 0;
        GifRecordType type = UNDEFINED_RECORD_TYPE;
        while (DGifGetRecordType(handle(), &type) == GIF_OK && type != TERMINATE_RECORD_TYPE) {
            const bool isPicture = type == IMAGE_DESC_RECORD_TYPE;
            if (!(isPicture ? skipPicture() : skipExtension())) {
                break;
            }
            pictures += isPicture ? 1 : 0;
        }
        return pictures;
    }

  private:
    struct State {
        FileView file;
        qint64 at = 0;
        QByteArray ahead; ///< Bytes up to `aheadEnd`: giflib asks for 255 at most.
        qint64 aheadEnd = 0;
    };
    struct Close {
        void operator()(GifFileType *gif) const { DGifCloseFile(gif, nullptr); }
    };

    static int read(GifFileType *gif, GifByteType *target, int size) {
        auto &state = *static_cast<State *>(gif->UserData);
        try {
            constexpr qint64 kBytesAhead = 1 << 16;
            if (state.aheadEnd - state.at < size) {
                state.ahead = state.file.read(state.at, std::max<qint64>(kBytesAhead, size));
                state.aheadEnd = state.at + state.ahead.size();
            }
            const auto got = std::clamp<qint64>(size, 0, state.aheadEnd - state.at);
            std::copy_n(state.ahead.cend() - (state.aheadEnd - state.at), got, target);
            state.at += got;
            return static_cast<int>(got);
        } catch (const Error &) {
            return 0; // No exception may pass through the library.
        }
    }

    [[noreturn]] static void fail() { throw Error(u"The GIF file is damaged"_s); }
    static void require(int result) {
        if (result != GIF_OK) {
            fail();
        }
    }

    void readExtension(int &transparent) const {
        int kind = 0;
        GifByteType *block = nullptr;
        require(DGifGetExtension(handle(), &kind, &block));
        while (block != nullptr) {
            GraphicsControlBlock control = {};
            if (kind == GRAPHICS_EXT_FUNC_CODE &&
                DGifExtensionToGCB(block[0], block + 1, &control) == GIF_OK) {
                transparent = control.TransparentColor;
            }
            require(DGifGetExtensionNext(handle(), &block));
        }
    }

    [[nodiscard]] bool skipPicture() const {
        int codeBits = 0;
        GifByteType *block = nullptr;
        bool isWhole = DGifGetImageDesc(handle()) == GIF_OK &&
                       DGifGetCode(handle(), &codeBits, &block) == GIF_OK;
        while (isWhole && block != nullptr) {
            isWhole = DGifGetCodeNext(handle(), &block) == GIF_OK;
        }
        return isWhole;
    }

    [[nodiscard]] bool skipExtension() const {
        int kind = 0;
        GifByteType *block = nullptr;
        bool isWhole = DGifGetExtension(handle(), &kind, &block) == GIF_OK;
        while (isWhole && block != nullptr) {
            isWhole = DGifGetExtensionNext(handle(), &block) == GIF_OK;
        }
        return isWhole;
    }

    std::unique_ptr<State> m_state; ///< giflib holds its address.
    std::unique_ptr<GifFileType, Close> m_handle;
};

/// The colours of a table. Numbers behind its end are transparent, all are black without one.
std::array<Argb, 256> colorsOf(const ColorMapObject *map, int transparent) {
    std::array<Argb, 256> colors;
    colors.fill(map != nullptr ? kTransparent : 0);
    for (int i = 0; map != nullptr && i < map->ColorCount; ++i) {
        const GifColorType &color = map->Colors[i];
        colors[static_cast<size_t>(i)] = argb(color.Red, color.Green, color.Blue);
    }
    if (transparent >= 0) {
        colors[static_cast<size_t>(transparent)] &= ~kOpaque;
    }
    return colors;
}

ImageHeader headerOf(const GifFile &gif) {
    ImageHeader header;
    header.width = gif->SWidth;
    header.height = gif->SHeight;
    if (header.width == 0 || header.height == 0) {
        // The first picture gives what the screen leaves open.
        const GifImageDesc &picture = gif->Image;
        header.width = header.width == 0 ? picture.Left + picture.Width : header.width;
        header.height = header.height == 0 ? picture.Top + picture.Height : header.height;
    }
    return checkedHeader(header);
}

ImageHeader readHeader(const FileView &file) {
    const GifFile gif(file);
    if (gif->SWidth == 0 || gif->SHeight == 0) {
        gif.goToPicture();
    }
    return headerOf(gif);
}

/// What stands where the picture does not reach, or where its data ends early.
Argb backgroundOf(const GifFile &gif, int transparent) {
    const GifImageDesc &picture = gif->Image;
    const bool coversAll = picture.Left == 0 && picture.Top == 0 && picture.Width >= gif->SWidth &&
                           picture.Height >= gif->SHeight;
    if (coversAll) {
        return 0;
    }
    const int number = transparent >= 0 ? transparent : gif->SBackGroundColor & 0xFF;
    return colorsOf(gif->SColorMap, transparent)[static_cast<size_t>(number)];
}

/// The rows of a picture in the order in which it stores them.
std::vector<int> storedRows(const GifImageDesc &picture) {
    std::vector<int> rows;
    const auto addEvery = [&](int step, int first) {
        for (int y = first; y < picture.Height; y += step) {
            rows.push_back(y);
        }
    };
    if (picture.Interlace) {
        addEvery(8, 0);
        addEvery(8, 4);
        addEvery(4, 2);
        addEvery(2, 1);
    } else {
        addEvery(1, 0);
    }
    return rows;
}

/// Draws the picture where it lies on the screen; gives how many of its rows cannot be read.
qint64 drawPicture(const GifFile &gif, int transparent, ArgbImage &screen) {
    const GifImageDesc &picture = gif->Image;
    const auto colors =
        colorsOf(picture.ColorMap != nullptr ? picture.ColorMap : gif->SColorMap, transparent);
    std::vector<GifPixelType> line(static_cast<size_t>(picture.Width));
    const auto columns = std::clamp<qsizetype>(screen.width - picture.Left, 0, picture.Width);
    int read = 0;
    for (const int y : storedRows(picture)) {
        if (DGifGetLine(gif.handle(), line.data(), picture.Width) != GIF_OK) {
            break;
        }
        ++read;
        if (picture.Top + y < screen.height && columns > 0) {
            std::transform(line.begin(), line.begin() + columns,
                           screen.row(picture.Top + y) + picture.Left,
                           [&](GifPixelType number) { return colors[number]; });
        }
    }
    return picture.Height - read;
}

PdfImage toPdfImage(const FileView &file) {
    constexpr qint64 kLzwRatio = 3000;
    const GifFile gif(file);
    const int transparent = gif.goToPicture();
    const ImageHeader header = headerOf(gif);
    const qint64 pixels = qint64(header.width) * header.height;
    requirePlausible(pixels, file.size(), kLzwRatio);
    ArgbImage screen{header.width, header.height, transparent >= 0, {}};
    screen.pixels.assign(static_cast<size_t>(pixels), backgroundOf(gif, transparent));
    const qint64 missing = drawPicture(gif, transparent, screen);
    if (missing > 0 && missing == gif->Image.Height) {
        throw Error(u"The GIF file is damaged"_s);
    }
    PdfImage image = encodeRaster(rasterOf(screen), header);
    if (missing > 0) {
        image.warnings.push_back(cutOffPicture(missing, gif->Image.Height));
    }
    addMorePictures(image.warnings, gif.countFurtherPictures(), QLatin1StringView("picture"));
    return image;
}

bool recognises(QByteArrayView head) {
    return head.startsWith("GIF87a") || head.startsWith("GIF89a");
}

} // namespace

ImageFormat gifFormat() {
    return {ImageKind::Gif, {QLatin1StringView("gif")}, recognises, readHeader, toPdfImage};
}

} // namespace folioforge
