// SPDX-License-Identifier: Apache-2.0

#include "files/AbandonedParts.h"

#include "files/FileDescriptor.h"
#include "files/PartFiles.h"

#include <QFile>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace folioforge {

namespace {

struct Close {
    void operator()(DIR *folder) const { ::closedir(folder); }
};
using Names = std::unique_ptr<DIR, Close>;

bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

/// Whether a part has the name: ".NAME.RANDOM.folioforge-part", with a random number to the
/// base 36.
bool isPartName(std::string_view name) {
    if (!name.starts_with('.') || !name.ends_with(kPartEnding)) {
        return false;
    }
    name.remove_suffix(kPartEnding.size());
    const auto number = name.substr(name.rfind('.') + 1);
    return number.size() + 1 < name.size() && !number.empty() &&
           std::ranges::all_of(
               number, [](char byte) { return isDigit(byte) || (byte >= 'a' && byte <= 'z'); });
}

/// Whether the name of a part is that of a folder.
bool isFolderName(std::string_view name) {
    const auto dot = name.find('.', 1);
    return name.substr(1, dot - 1) == kPartFolder && name.find('.', dot + 1) == name.rfind('.');
}

/// A descriptor of a part; not open where that cannot be had. Some network file systems lock only
/// what is open for writing, which a folder never is.
FileDescriptor openPart(int folder, const char *name) {
    constexpr int kFlags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const int fd = ::openat(folder, name, O_RDWR | kFlags);
    return FileDescriptor(
        fd >= 0 || errno != EISDIR ? fd : ::openat(folder, name, O_RDONLY | O_DIRECTORY | kFlags));
}

/// Whether nobody locks the part. Unlike lockPart() it says no where the file system has no locks.
bool isUnlocked(int fd) {
    return ::flock(fd, LOCK_EX | LOCK_NB) == 0;
}

bool isOwn(const struct stat &status) {
    return status.st_uid == ::geteuid();
}

bool isOwnFolder(const struct stat &status) {
    constexpr mode_t kMode = 07777;
    return S_ISDIR(status.st_mode) && isOwn(status) && (status.st_mode & kMode) == S_IRWXU;
}

std::vector<std::string> namesIn(int folder) {
    std::vector<std::string> found;
    FileDescriptor opened(::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const Names names(opened.isOpen() ? ::fdopendir(opened.get()) : nullptr);
    if (names) {
        opened.release(); // It is closed with them.
    }
    while (const dirent *entry = names ? ::readdir(names.get()) : nullptr) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") {
            found.emplace_back(name);
        }
    }
    return found;
}

bool isLink(int folder, const std::string &name) {
    struct stat status = {};
    return ::fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISLNK(status.st_mode);
}

/// Whether a temporary folder can hold this: a copy of a document that nobody but the owner may
/// read, or a folder with a number that holds a link.
bool isContent(int folder, const std::string &name) {
    struct stat status = {};
    if (::fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
        return false;
    }
    if (S_ISREG(status.st_mode)) {
        return isOwn(status) && (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
    }
    const FileDescriptor numbered = openPart(folder, name.c_str());
    return isOwnFolder(status) && std::ranges::all_of(name, isDigit) && numbered.isOpen() &&
           std::ranges::all_of(namesIn(numbered.get()), [&](const std::string &link) {
               return isLink(numbered.get(), link);
           });
}

/// Removes a folder of files and links whose own folders have no folders in them.
void removeFolder(int parent, const char *name, int folder) {
    for (const std::string &content : namesIn(folder)) {
        if (::unlinkat(folder, content.c_str(), 0) != 0) {
            removeFolder(folder, content.c_str(), openPart(folder, content.c_str()).get());
        }
    }
    ::unlinkat(parent, name, AT_REMOVEDIR);
}

void removeIfAbandoned(int folder, const char *name, AbandonedParts::Kinds kinds) {
    const FileDescriptor part = openPart(folder, name);
    struct stat status = {};
    if (!part.isOpen() || ::fstat(part.get(), &status) != 0) {
        return;
    }
    if (S_ISREG(status.st_mode) && isOwn(status) && isUnlocked(part.get())) {
        ::unlinkat(folder, name, 0);
    }
    const bool isFolder = kinds == AbandonedParts::Kinds::FilesAndFolders && isFolderName(name) &&
                          isOwnFolder(status) && isUnlocked(part.get());
    if (isFolder && std::ranges::all_of(namesIn(part.get()), [&](const std::string &content) {
            return isContent(part.get(), content);
        })) {
        removeFolder(folder, name, part.get());
    }
}

/// Looks at the names that follow, `most` of them at most; false when there is none left.
bool clear(const Names &names, AbandonedParts::Kinds kinds, int most) {
    for (; most > 0; --most) {
        const dirent *entry = names ? ::readdir(names.get()) : nullptr;
        if (!entry) {
            return false;
        }
        if (isPartName(entry->d_name)) {
            try {
                removeIfAbandoned(::dirfd(names.get()), entry->d_name, kinds);
            } catch (const std::bad_alloc &) {
                return false; // Another run will come to the rest.
            }
        }
    }
    return true;
}

} // namespace

AbandonedParts::AbandonedParts(const QString &folder, Kinds kinds) {
    constexpr int kAtOnce = 10'000;
    Names names(::opendir(QFile::encodeName(folder).constData()));
    if (!clear(names, kinds, kAtOnce)) {
        return;
    }
    try {
        m_thread = std::jthread([kinds, names = std::move(names)](const std::stop_token &stop) {
            constexpr int kBetweenLooks = 100;
            while (!stop.stop_requested() && clear(names, kinds, kBetweenLooks)) {
            }
        });
    } catch (const std::system_error &) {
        // The system gives no thread: another run will come to the rest.
    }
}

} // namespace folioforge
