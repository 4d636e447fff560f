#pragma once

#include "lib/err/ResultCode.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace tessaly::platform {

enum class FileKind {
    Missing,
    Regular,
    Directory,
    DanglingLink,
    Other, ///< device, FIFO, socket
};

/// What is known of a file; links are followed.
struct FileStatus
{
    FileKind kind = FileKind::Missing;
    bool isLink = false; ///< the path itself names a symbolic link
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t hardLinks = 0;
    std::int64_t size = 0;
    std::int64_t modifiedNs = 0; ///< since the system's epoch, modulo 2^64: only to compare for equality

    bool sameFile(const FileStatus& other) const
    {
        return kind != FileKind::Missing && device == other.device && inode == other.inode;
    }
};

/// Never blocks, whatever the path names. A path that cannot be examined counts as missing.
FileStatus fileStatus(const std::wstring& path);

ResultCode removeFile(const std::wstring& path);

/// Makes a created or removed entry of the folder that holds `path` durable.
ResultCode syncFolderOf(const std::wstring& path);

enum class Creation {
    OpenOrCreate,
    CreateNew, ///< fails when anything stands at the path, a dangling link included
};

enum class Access {
    Private, ///< the owner alone
    Default, ///< what the user's umask leaves
};

/// An open file; closes itself. One thread at a time, but for the queries of a const object.
class File
{
public:
    File() = default;
    ~File();
    File(File&& other) noexcept;
    File& operator=(File&& other) noexcept;

    /// Both close the file that was open before. Never blocks, not even on a FIFO.
    ResultCode openForReading(const std::wstring& path);
    ResultCode openForWriting(const std::wstring& path, Creation creation, Access access);
    bool isOpen() const { return m_handle >= 0; }

    ResultCode status(FileStatus& status) const;
    /// One read; zero bytes at the end of the file.
    ResultCode read(void* buffer, std::size_t count, std::size_t& countRead) const;
    /// One write; may write less than asked.
    ResultCode write(const void* buffer, std::size_t count, std::size_t& countWritten) const;
    ResultCode seekToEnd() const;
    /// Asks the system to begin writing to the disk what it holds of these bytes; does not wait.
    void startWriteback(std::int64_t offset, std::int64_t count) const;
    /// Returns when data and size have reached the disk.
    ResultCode sync() const;
    ResultCode close();

private:
    int m_handle = -1;
};

} // namespace tessaly::platform
