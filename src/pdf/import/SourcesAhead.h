// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceReader.h"
#include "pdf/Password.h"

#include <QString>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <stop_token>
#include <thread>
#include <vector>

class QPDF;

namespace folioforge {

/// Parses the next source of a document on a second core while one is copied, and frees those that
/// were copied there.
class SourcesAhead {
  public:
    /// Parses the PDFs at `paths`, in their order, as openSourceDocument() does; none where the
    /// machine has one core.
    SourcesAhead(const std::vector<QString> &paths, InputPasswords passwords, SystemCalls &calls,
                 unsigned cores = std::thread::hardware_concurrency());
    ~SourcesAhead();
    SourcesAhead(const SourcesAhead &) = delete;
    SourcesAhead &operator=(const SourcesAhead &) = delete;

    /// The source `file` with all of its objects, which `reader` reads from now on. Null where it
    /// is to be opened in its turn: it was not begun, is not sound, is too large, or has changed.
    std::unique_ptr<QPDF> take(const FileVersion &file,
                               const std::shared_ptr<SourceReader> &reader);
    /// Frees `source` on the other core where that is not busy with another.
    void free(std::unique_ptr<QPDF> source);

  private:
    struct Parsed {
        FileVersion file;
        std::shared_ptr<SourceReader> reader;
        std::unique_ptr<QPDF> document; ///< Null where it is to be opened in its turn.
    };
    struct Source {
        QString path;
        bool isDone = false;
        Parsed parsed;
    };

    void work(const std::stop_token &stop);
    [[nodiscard]] bool mayBegin() const;
    void parseNext(std::unique_lock<std::mutex> &lock, const std::stop_token &stop);
    [[nodiscard]] Parsed parse(const QString &path, const std::stop_token &stop) const;

    InputPasswords m_passwords;
    SystemCalls &m_calls;
    std::mutex m_mutex; ///< Guards what follows.
    std::condition_variable_any m_changed;
    std::vector<Source> m_sources;
    std::size_t m_begun = 0;
    std::size_t m_taken = 0;
    std::unique_ptr<QPDF> m_unneeded;
    std::jthread m_worker;
};

} // namespace folioforge
