// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"
#include "image/formats/HeifLibrary.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace folioforge {

struct ReleaseHeif {
    void operator()(heif_context *held) const { heif().context_free(held); }
    void operator()(heif_image_handle *held) const { heif().image_handle_release(held); }
    void operator()(heif_image *held) const { heif().image_release(held); }
    void operator()(heif_color_profile_nclx *held) const { heif().nclx_color_profile_free(held); }
};
using HeifHandle = std::unique_ptr<heif_image_handle, ReleaseHeif>;
using HeifImage = std::unique_ptr<heif_image, ReleaseHeif>;

/// Throws what a call of libheif complains of: Error, or std::bad_alloc.
void requireHeif(const heif_error &error);

/// A file opened with libheif over a view.
class HeifFile {
  public:
    /// Throws Error where libheif cannot be loaded or cannot read the file.
    explicit HeifFile(const FileView &file);
    HeifFile(const HeifFile &) = delete;
    HeifFile &operator=(const HeifFile &) = delete;

    /// The pictures that a viewer shows, beginning with the primary one.
    [[nodiscard]] std::vector<heif_item_id> pictures() const;
    [[nodiscard]] HeifHandle picture(heif_item_id id) const;

  private:
    struct Source {
        FileView file;
        qint64 at = 0;
    };

    static int64_t position(void *source) { return static_cast<Source *>(source)->at; }
    static int read(void *target, size_t size, void *source);
    static int seek(int64_t place, void *source);
    static heif_reader_grow_status waitForSize(int64_t size, void *source);

    Source m_source; ///< libheif holds its address.
    std::unique_ptr<heif_context, ReleaseHeif> m_context;
};

} // namespace folioforge
