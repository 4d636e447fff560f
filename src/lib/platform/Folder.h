#pragma once

#include "lib/platform/File.h"

#include <filesystem>
#include <vector>

namespace tessaly::platform {

// What a failure means, whatever the system's number for it.
bool isMissing(const ResultCode& result);     ///< nothing stands there
bool isOccupied(const ResultCode& result);    ///< something stands there already
bool isUnsupported(const ResultCode& result); ///< the file system has no such thing
bool isLocked(const ResultCode& result);      ///< somebody else has the lock

/// A folder that is held open. What is done to its entries goes through it, so that a folder which is
/// renamed or swapped meanwhile misleads nobody. Entries are named by a single file name. Any thread,
/// but for open and the destructor.
class Folder
{
public:
    Folder() = default;
    ~Folder();
    Folder(Folder&& other) noexcept;
    Folder& operator=(Folder&& other) noexcept;

    /// The folder that holds, or would hold, the file of this path. isMissing for a path without a
    /// file name.
    ResultCode openParentOf(const std::filesystem::path& path);
    bool isOpen() const { return m_handle >= 0; }
    /// Whether the file of this path would be created in this folder.
    bool isParentOf(const std::filesystem::path& path) const;

    /// The entry; of kind Missing when it cannot be examined.
    FileStatus status(const std::filesystem::path& name) const;
    ResultCode openForReading(const std::filesystem::path& name, File& file) const;

    /// A file that no name leads to and that ends with its handle, until link gives it one. Unsupported
    /// where the file system has no such thing. Where every file has a name, it is called `standIn`, which
    /// nobody can open; only a loss of power leaves it behind.
    ResultCode createNameless(const std::filesystem::path& standIn, const Access& access, File& file) const;
    /// Fails when anything stands there, a dangling link included.
    ResultCode createNew(const std::filesystem::path& name, const Access& access, File& file) const;
    /// Gives a nameless file a name; fails when anything stands there.
    ResultCode link(const File& file, const std::filesystem::path& name) const;
    /// Renames in one step; fails when anything stands there.
    ResultCode renameToNew(const std::filesystem::path& from, const std::filesystem::path& to) const;
    /// Renames in one step, in the place of what stands there.
    ResultCode renameOver(const std::filesystem::path& from, const std::filesystem::path& to) const;
    /// Lets two entries change places in one step; not every file system can.
    ResultCode exchange(const std::filesystem::path& first, const std::filesystem::path& second) const;
    ResultCode remove(const std::filesystem::path& name) const;

    /// Returns when created, renamed and removed entries have reached the disk.
    ResultCode sync() const;

    /// The names that begin with `prefix`, of regular files of this user.
    std::vector<std::filesystem::path> ownFiles(const std::string& prefix) const;

private:
    int m_handle = -1;
    bool m_readable = false; ///< else it can be walked through, but neither listed nor synced
};

} // namespace tessaly::platform
