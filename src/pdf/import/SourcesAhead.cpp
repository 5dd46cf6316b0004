// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/SourcesAhead.h"

#include "pdf/import/SourceDocument.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <system_error>
#include <utility>

namespace folioforge {

namespace {

/// Most take some hundred bytes of memory. What has more is parsed as it is copied.
constexpr std::size_t kMaxObjects = 50'000;

/// Parses all objects of `document`; false where it is not to be done here, or is not sound.
bool parseObjects(QPDF &document, const std::stop_token &stop) {
    const auto table = document.getXRefTable();
    if (table.size() > kMaxObjects) {
        return false;
    }
    for (const auto &[object, place] : table) {
        static_cast<void>(document.getObject(object).getTypeCode());
        if (stop.stop_requested() || document.anyWarnings()) {
            return false;
        }
    }
    return true;
}

} // namespace

SourcesAhead::SourcesAhead(const std::vector<QString> &paths, InputPasswords passwords,
                           SystemCalls &calls, unsigned cores)
    : m_passwords(std::move(passwords))
    , m_calls(calls) {
    if (paths.size() < 2 || cores < 2) {
        return;
    }
    for (const QString &path : paths) {
        m_sources.push_back({path, false, {}});
    }
    try {
        m_worker = std::jthread([this](const std::stop_token &stop) { work(stop); });
    } catch (const std::system_error &) {
        m_sources.clear(); // The system has no further thread.
    }
}

SourcesAhead::~SourcesAhead() = default;

std::unique_ptr<QPDF> SourcesAhead::take(const FileVersion &file,
                                         const std::shared_ptr<SourceReader> &reader) {
    std::unique_lock lock(m_mutex);
    const auto next = m_sources.begin() + static_cast<std::ptrdiff_t>(m_taken);
    const auto source = std::find_if(next, m_sources.end(), [&](const Source &candidate) {
        return candidate.path == file.path;
    });
    if (source == m_sources.end()) {
        return nullptr;
    }
    m_taken = static_cast<std::size_t>(source - m_sources.begin()) + 1;
    const bool isBegun = m_taken <= m_begun;
    m_begun = std::max(m_begun, m_taken);
    m_changed.notify_all();
    if (!isBegun) {
        return nullptr;
    }
    m_changed.wait(lock, [&] { return source->isDone; });
    std::for_each(next, source, [](Source &skipped) { skipped.parsed = {}; });
    Parsed parsed = std::move(source->parsed);
    if (!parsed.document || parsed.file != file) {
        return nullptr;
    }
    parsed.reader->handOverTo(reader);
    return std::move(parsed.document);
}

void SourcesAhead::free(std::unique_ptr<QPDF> source) {
    const std::lock_guard lock(m_mutex);
    if (m_worker.joinable() && !m_unneeded) {
        m_unneeded = std::move(source);
        m_changed.notify_all();
    }
}

bool SourcesAhead::mayBegin() const {
    return m_begun < m_sources.size() && m_begun <= m_taken;
}

void SourcesAhead::work(const std::stop_token &stop) {
    std::unique_lock lock(m_mutex);
    const auto hasWork = [this] { return mayBegin() || m_unneeded; };
    while (m_changed.wait(lock, stop, hasWork) && !stop.stop_requested()) {
        if (mayBegin()) {
            parseNext(lock, stop);
        } else {
            auto unneeded = std::move(m_unneeded);
            lock.unlock();
            unneeded.reset();
            lock.lock();
        }
    }
}

void SourcesAhead::parseNext(std::unique_lock<std::mutex> &lock, const std::stop_token &stop) {
    Source &source = m_sources[m_begun++];
    lock.unlock();
    Parsed parsed = parse(source.path, stop);
    lock.lock();
    source.parsed = std::move(parsed);
    source.isDone = true;
    m_changed.notify_all();
}

SourcesAhead::Parsed SourcesAhead::parse(const QString &path, const std::stop_token &stop) const {
    try {
        Parsed parsed{FileVersion::of(path), std::make_shared<SourceReader>(m_calls), nullptr};
        auto document = openSourceDocument(parsed.file, parsed.reader, m_passwords);
        if (parseObjects(*document, stop)) {
            parsed.reader->finish();
            parsed.document = std::move(document);
        }
        return parsed;
    } catch (...) {
        return {}; // It fails again in its turn, where it has to.
    }
}

} // namespace folioforge
