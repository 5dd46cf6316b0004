// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"

#include <gif_lib.h>

#include <memory>
#include <optional>

namespace folioforge {

/// Of a picture of which nothing is said.
inline constexpr GraphicsControlBlock kNoGifControl{DISPOSAL_UNSPECIFIED, false, 0,
                                                    NO_TRANSPARENT_COLOR};

/// A GIF file opened with giflib over a view, read from one picture to the next.
class GifFile {
  public:
    /// Throws Error where it is none.
    explicit GifFile(const FileView &file);

    [[nodiscard]] GifFileType *operator->() const { return m_handle.get(); }
    [[nodiscard]] GifFileType *handle() const { return m_handle.get(); }

    /// Goes to the first picture and gives what is said of it. Throws Error where there is none.
    GraphicsControlBlock goToPicture() const;
    /// Goes to the picture behind the current one, whose rows have been read; nothing where the
    /// file ends before one begins.
    [[nodiscard]] std::optional<GraphicsControlBlock> goToNextPicture() const;
    /// The pictures behind the current one, whose rows have been read.
    [[nodiscard]] qint64 countFurtherPictures() const;

    [[noreturn]] static void fail();

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

    static int read(GifFileType *gif, GifByteType *target, int size);
    /// As goToNextPicture(); `isAtEnd` where the file says that it ends.
    std::optional<GraphicsControlBlock> advance(bool &isAtEnd) const;
    /// False where the extension is not whole.
    [[nodiscard]] bool readExtension(GraphicsControlBlock &control) const;
    [[nodiscard]] bool skipRows() const;

    std::unique_ptr<State> m_state; ///< giflib holds its address.
    std::unique_ptr<GifFileType, Close> m_handle;
};

} // namespace folioforge
