// SPDX-License-Identifier: Apache-2.0

#include "convert/PicturesAhead.h"

#include <QScopeGuard>

#include <system_error>
#include <utility>

namespace folioforge {

namespace {

/// Pictures that are read at once. Each takes the memory of its pixels meanwhile.
constexpr unsigned kAtOnce = 2;
/// Pictures before their turn: some are read in no time, others take a thousand times as long. Each
/// may keep its file open.
constexpr std::size_t kMaxAhead = 8;
constexpr qint64 kMaxKeptBytes = 32 << 20;

bool isPicture(const PDFFileInfo &entry) {
    return entry.kind() != FileKind::Text && entry.kind() != FileKind::Pdf;
}

qint64 bytesOf(const PdfImage &image) {
    return image.data.size() + (image.softMask ? image.softMask->data.size() : 0);
}

} // namespace

PicturesAhead::PicturesAhead(std::span<const PDFFileInfo *const> entries,
                             const ConversionOptions &options)
    : m_options(options) {
    for (const PDFFileInfo *entry : entries) {
        if (isPicture(*entry)) {
            m_pictures.push_back({entry, false, {}});
        }
    }
    // A file that is attached, too, must be the one that its page shows: it is read in its turn.
    const bool isAttached = options.archive && options.archive->embedSources;
    if (m_pictures.size() > 1 && !options.allPictures && !isAttached &&
        std::thread::hardware_concurrency() >= kAtOnce) {
        start();
    }
}

PicturesAhead::~PicturesAhead() {
    const std::lock_guard lock(m_mutex);
    m_pictures.clear();
    m_changed.notify_all();
}

/// The threads stay, since the allocator keeps memory for each: the next picture need not ask for
/// it.
void PicturesAhead::start() {
    m_workers.reserve(kAtOnce);
    try {
        while (m_workers.size() < kAtOnce) {
            m_workers.emplace_back([this] { work(); });
        }
    } catch (const std::system_error &) {
        // The system has no further thread. Those that there are do all.
    }
}

PdfImage PicturesAhead::take(const PDFFileInfo &entry) {
    if (m_workers.empty()) {
        return read(entry);
    }
    std::unique_lock lock(m_mutex);
    while (m_pictures.at(m_taken).entry != &entry) {
        takeNext(lock); // Of an entry that failed before it had a picture.
    }
    if (auto image = takeNext(lock)) {
        return std::move(*image);
    }
    return readAlone(entry, lock);
}

/// The next picture, once it was read; nothing where it could not be.
std::optional<PdfImage> PicturesAhead::takeNext(std::unique_lock<std::mutex> &lock) {
    Picture &picture = m_pictures[m_taken++];
    m_changed.notify_all();
    m_changed.wait(lock, [&] { return picture.isDone; });
    m_keptBytes -= picture.image ? bytesOf(*picture.image) : 0;
    m_changed.notify_all();
    return std::exchange(picture.image, std::nullopt);
}

/// Others may have taken the memory that the picture needs.
PdfImage PicturesAhead::readAlone(const PDFFileInfo &entry, std::unique_lock<std::mutex> &lock) {
    m_waits = true;
    m_changed.wait(lock, [this] { return m_working == 0; });
    lock.unlock();
    const auto goOn = qScopeGuard([&] {
        lock.lock();
        m_waits = false;
        m_changed.notify_all();
    });
    return read(entry);
}

PdfImage PicturesAhead::read(const PDFFileInfo &entry) const {
    return toPdfImage(entry.filePathName(), m_options.calls, m_options.sourceMetadata());
}

bool PicturesAhead::mayBegin() const {
    return !m_waits && m_begun < m_pictures.size() && m_begun < m_taken + kMaxAhead &&
           (m_begun < m_taken || m_keptBytes < kMaxKeptBytes);
}

void PicturesAhead::work() {
    std::unique_lock lock(m_mutex);
    while (m_begun < m_pictures.size()) {
        if (!mayBegin()) {
            m_changed.wait(lock);
            continue;
        }
        const std::size_t index = m_begun++;
        const PDFFileInfo &entry = *m_pictures[index].entry;
        ++m_working;
        lock.unlock();
        std::optional<PdfImage> image;
        try {
            image = read(entry);
        } catch (...) {
            // It is read again when its turn comes, and fails then where it has to.
        }
        lock.lock();
        --m_working;
        if (index < m_pictures.size()) {
            m_keptBytes += image ? bytesOf(*image) : 0;
            m_pictures[index].image = std::move(image);
            m_pictures[index].isDone = true;
        }
        m_changed.notify_all();
    }
}

} // namespace folioforge
