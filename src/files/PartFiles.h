// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <atomic>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace folioforge {

// Every temporary file or folder with a name is hidden and ends in ".folioforge-part": a part. The
// process that makes a part locks it while it uses it. The system drops the lock when the process
// ends, so an unlocked part was left by a process that was killed.

inline constexpr std::string_view kPartEnding = ".folioforge-part";
/// The NAME of parts that are folders.
inline constexpr std::string_view kPartFolder = "folder";

/// The path of a new temporary file or folder in `folder`: ".NAME.RANDOM.folioforge-part", with the
/// name cut at a character so that the whole fits the 255 bytes of a file name.
std::string partPath(const std::string &folder, const QByteArray &name);

/// Locks the part behind `fd` until that is closed. False when another process holds the lock,
/// because it is about to remove the part.
bool lockPart(int fd);

/// Whether the part behind `fd` was removed: it is open and has no name.
bool isRemoved(int fd);

/// Keeps the path of a part where a signal handler finds it.
class PartFile {
  public:
    explicit PartFile(std::string path);
    ~PartFile();
    PartFile(const PartFile &) = delete;
    PartFile &operator=(const PartFile &) = delete;

    [[nodiscard]] const std::string &path() const { return m_path; }

  private:
    friend void removePartFiles() noexcept;

    std::string m_path;
    std::atomic<PartFile *> m_older{nullptr}; ///< The one registered before, of those that live.
};

/// A whole temporary file that is removed with this object.
class TemporaryFile {
  public:
    /// The file that `part` names; it exists.
    explicit TemporaryFile(std::unique_ptr<const PartFile> part)
        : m_part(std::move(part)) {}
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;

    [[nodiscard]] const std::string &path() const { return m_part->path(); }

  private:
    std::unique_ptr<const PartFile> m_part;
};

/// Removes every part of this process, folders as far as they are empty then. Safe to call in a
/// signal handler.
void removePartFiles() noexcept;

} // namespace folioforge
