// SPDX-License-Identifier: Apache-2.0

#include "image/formats/GifFile.h"

#include "error/Error.h"
#include "error/Reasons.h"

#include <algorithm>

namespace folioforge {

GifFile::GifFile(const FileView &file)
    : m_state(new State{file, 0, {}, 0})
    , m_handle(DGifOpen(m_state.get(), read, nullptr)) {
    if (!m_handle) {
        fail();
    }
}

void GifFile::fail() {
    throw Error(Reasons::tr("The GIF file is damaged"));
}

GraphicsControlBlock GifFile::goToPicture() const {
    bool isAtEnd = false;
    const auto control = advance(isAtEnd);
    if (isAtEnd) {
        throw Error(Reasons::tr("The file holds no image"));
    }
    if (!control) {
        fail();
    }
    return *control;
}

std::optional<GraphicsControlBlock> GifFile::goToNextPicture() const {
    bool isAtEnd = false;
    return advance(isAtEnd);
}

std::optional<GraphicsControlBlock> GifFile::advance(bool &isAtEnd) const {
    GraphicsControlBlock control = kNoGifControl;
    GifRecordType type = UNDEFINED_RECORD_TYPE;
    while (DGifGetRecordType(handle(), &type) == GIF_OK) {
        if (type == IMAGE_DESC_RECORD_TYPE) {
            return DGifGetImageDesc(handle()) == GIF_OK ? std::optional(control) : std::nullopt;
        }
        isAtEnd = type == TERMINATE_RECORD_TYPE;
        if (isAtEnd || !readExtension(control)) {
            break;
        }
    }
    return std::nullopt;
}

qint64 GifFile::countFurtherPictures() const {
    qint64 pictures = 0;
    while (goToNextPicture() && skipRows()) {
        ++pictures;
    }
    return pictures;
}

int GifFile::read(GifFileType *gif, GifByteType *target, int size) {
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
    } catch (...) {
        return 0; // No exception may pass through the library.
    }
}

bool GifFile::readExtension(GraphicsControlBlock &control) const {
    int kind = 0;
    GifByteType *block = nullptr;
    bool isWhole = DGifGetExtension(handle(), &kind, &block) == GIF_OK;
    while (isWhole && block != nullptr) {
        if (kind == GRAPHICS_EXT_FUNC_CODE) {
            DGifExtensionToGCB(block[0], block + 1, &control);
        }
        isWhole = DGifGetExtensionNext(handle(), &block) == GIF_OK;
    }
    return isWhole;
}

bool GifFile::skipRows() const {
    int codeBits = 0;
    GifByteType *block = nullptr;
    bool isWhole = DGifGetCode(handle(), &codeBits, &block) == GIF_OK;
    while (isWhole && block != nullptr) {
        isWhole = DGifGetCodeNext(handle(), &block) == GIF_OK;
    }
    return isWhole;
}

} // namespace folioforge
