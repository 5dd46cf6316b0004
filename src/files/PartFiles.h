#pragma once

#include <QByteArray>
#include <QString>

#include <atomic>
#include <string>

namespace folioforge {

// Everything temporary that gets a name is hidden and ends in ".folioforge-part". Its maker keeps a
// lock on it while it is in use, which ends with the process however that ends: what nobody has
// locked was left by a process that was killed.

/// The path of a new temporary file or folder in `folder`: ".NAME.RANDOM.folioforge-part", with the
/// name cut at a character so that the whole fits the 255 bytes of a file name.
std::string partPath(const std::string &folder, const QByteArray &name);

/// Locks the part behind `fd`, for as long as that is open. False when another process has it
/// locked, because it is about to remove it.
bool lockPart(int fd);

/// Whether the part behind `fd` has lost its name.
bool isRemoved(int fd);

/// Removes from `folder` the user's own parts that killed processes left. What cannot be removed
/// stays.
void removeAbandonedParts(const QString &folder);

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

/// Removes every part of this process, folders as far as they are empty then. Safe to call in a
/// signal handler.
void removePartFiles() noexcept;

} // namespace folioforge
