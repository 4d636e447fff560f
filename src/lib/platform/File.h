#pragma once

#include "lib/err/ResultCode.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>

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
    std::uint64_t hardLinks = 0; ///< none for a file that ends with its handle
    std::int64_t size = 0;
    std::int64_t modifiedNs = 0; ///< since the system's epoch, modulo 2^64: only to compare for equality
    /// Who may do what with it, as the system keeps it; for an open file with an access list what its
    /// owner may.
    std::uint32_t mode = 0;
    std::uint32_t group = 0;

    bool exists() const { return kind != FileKind::Missing; }
    bool sameFile(const FileStatus& other) const
    {
        return exists() && device == other.device && inode == other.inode;
    }
};

/// Never blocks, whatever the path names. A path that cannot be examined counts as missing.
FileStatus fileStatus(const std::filesystem::path& path);

ResultCode removeFile(const std::filesystem::path& path);

/// Who may use a file that is created.
class Access
{
public:
    static Access ownerOnly();
    /// What the user's umask leaves.
    static Access byUmask();
    /// What the umask leaves, but nobody who could not read that file as well.
    static Access noMoreThan(const FileStatus& file);

private:
    friend class Folder;
    friend class File;
    std::uint32_t m_mode = 0;
    std::uint32_t m_group = 0;
    bool m_forGroup = false; ///< another group than m_group gets no more than everybody
};

enum class Lock { Shared, Exclusive };

/// An open file; closes itself. One thread at a time, but for the queries of a const object.
class File
{
public:
    File() = default;
    ~File();
    File(File&& other) noexcept;
    File& operator=(File&& other) noexcept;

    /// Both close the file that was open before. Never blocks, not even on a FIFO.
    ResultCode openForReading(const std::filesystem::path& path);
    /// Creates it when it is missing.
    ResultCode openForWriting(const std::filesystem::path& path);
    /// Creates one for reading and writing in the folder, which no name leads to and only this user can
    /// open, and which ends with its handle.
    ResultCode openTemporary(const std::filesystem::path& folder);
    bool isOpen() const { return m_handle >= 0; }

    ResultCode status(FileStatus& status) const;
    /// One read; zero bytes at the end of the file.
    ResultCode read(void* buffer, std::size_t count, std::size_t& countRead) const;
    /// One write; may write less than asked, but on success never nothing.
    ResultCode write(const void* buffer, std::size_t count, std::size_t& countWritten) const;
    ResultCode seekToStart() const;
    ResultCode seekToEnd() const;
    /// Sets room for `size` bytes aside; the size of the file stays. Fails only when there is no such
    /// room: a file system that cannot do it takes the bytes as they come.
    ResultCode reserve(std::int64_t size) const;
    /// Asks the system to begin writing to the disk what it holds of these bytes; does not wait.
    void startWriteback(std::int64_t offset, std::int64_t count) const;
    /// Returns when data and size have reached the disk.
    ResultCode sync() const;
    /// Takes the file's advisory lock without waiting; it ends with the handle. An exclusive one takes
    /// a file that is open for writing. See isLocked in Folder.h.
    ResultCode tryLock(Lock lock) const;
    ResultCode close();

private:
    friend class Folder;
    int m_handle = -1;
};

} // namespace tessaly::platform
