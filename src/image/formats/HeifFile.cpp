// SPDX-License-Identifier: Apache-2.0

#include "image/formats/HeifFile.h"

#include "error/Error.h"
#include "error/Reasons.h"

#include <algorithm>
#include <new>

namespace folioforge {

void requireHeif(const heif_error &error) {
    if (error.code == heif_error_Memory_allocation_error) {
        throw std::bad_alloc();
    }
    if (error.code != heif_error_Ok) {
        throw Error(Reasons::tr("The HEIC or AVIF file cannot be read: %1")
                        .arg(QString::fromUtf8(error.message).simplified()));
    }
}

HeifFile::HeifFile(const FileView &file)
    : m_source{file}
    , m_context(heif().context_alloc()) {
    static const heif_error started = heif().init(nullptr); // Finds the decoders.
    requireHeif(started);
    if (!m_context) {
        throw std::bad_alloc();
    }
    static const heif_reader reader = [] {
        heif_reader made{}; // Later versions of libheif have more members.
        made.reader_api_version = 1;
        made.get_position = position;
        made.read = read;
        made.seek = seek;
        made.wait_for_file_size = waitForSize;
        return made;
    }();
    // Its threads would fail where the system grants none.
    heif().context_set_max_decoding_threads(m_context.get(), 0);
    requireHeif(heif().context_read_from_reader(m_context.get(), &reader, &m_source, nullptr));
}

std::vector<heif_item_id> HeifFile::pictures() const {
    heif_item_id primary = 0;
    requireHeif(heif().context_get_primary_image_ID(m_context.get(), &primary));
    std::vector<heif_item_id> all(static_cast<size_t>(
        std::max(0, heif().context_get_number_of_top_level_images(m_context.get()))));
    heif().context_get_list_of_top_level_image_IDs(m_context.get(), all.data(),
                                                   static_cast<int>(all.size()));
    std::erase(all, primary);
    all.insert(all.begin(), primary);
    return all;
}

HeifHandle HeifFile::picture(heif_item_id id) const {
    heif_image_handle *handle = nullptr;
    requireHeif(heif().context_get_image_handle(m_context.get(), id, &handle));
    return HeifHandle(handle);
}

int HeifFile::read(void *target, size_t size, void *source) {
    auto &from = *static_cast<Source *>(source);
    try {
        const qint64 got = from.file.readInto(from.at, {static_cast<uchar *>(target), size});
        from.at += got;
        return got == static_cast<qint64>(size) ? 0 : 1;
    } catch (...) {
        return 1; // No exception may pass through the library.
    }
}

int HeifFile::seek(int64_t place, void *source) {
    static_cast<Source *>(source)->at = place;
    return 0;
}

heif_reader_grow_status HeifFile::waitForSize(int64_t size, void *source) {
    return size <= static_cast<Source *>(source)->file.size()
               ? heif_reader_grow_status_size_reached
               : heif_reader_grow_status_size_beyond_eof;
}

} // namespace folioforge
