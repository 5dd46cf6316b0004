// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "convert/ConversionOptions.h"
#include "filelist/PDFFileInfo.h"
#include "image/PdfImage.h"

#include <condition_variable>
#include <mutex>
#include <optional>
#include <span>
#include <thread>
#include <vector>

namespace folioforge {

/// Reads the pictures of a PDF on two cores, some before their turn.
class PicturesAhead {
  public:
    /// Reads with `options`, which outlive this object as the entries do.
    PicturesAhead(std::span<const PDFFileInfo *const> entries, const ConversionOptions &options);
    ~PicturesAhead();
    PicturesAhead(const PicturesAhead &) = delete;
    PicturesAhead &operator=(const PicturesAhead &) = delete;

    /// The picture of `entry`; those of a PDF are taken in their order. Throws Error as
    /// toPdfImage().
    PdfImage take(const PDFFileInfo &entry);

  private:
    struct Picture {
        const PDFFileInfo *entry;
        bool isDone = false;
        std::optional<PdfImage> image; ///< Nothing where it could not be read.
    };

    void start();
    void work();
    [[nodiscard]] bool mayBegin() const;
    [[nodiscard]] PdfImage read(const PDFFileInfo &entry) const;
    std::optional<PdfImage> takeNext(std::unique_lock<std::mutex> &lock);
    PdfImage readAlone(const PDFFileInfo &entry, std::unique_lock<std::mutex> &lock);

    const ConversionOptions &m_options;
    std::mutex m_mutex; ///< Guards what follows.
    std::condition_variable m_changed;
    std::vector<Picture> m_pictures;
    std::size_t m_begun = 0;
    std::size_t m_taken = 0;
    qint64 m_keptBytes = 0; ///< Of pictures that are done and not taken.
    int m_working = 0;
    bool m_waits = false; ///< Nothing more is begun.
    std::vector<std::jthread> m_workers;
};

} // namespace folioforge
