#pragma once

#include "lib/platform/Folder.h"

#include <filesystem>

namespace tessaly::io {

/// Where one file of a job stands: its folder, held open, and its name there. Every step on the file
/// goes through that one folder, so that nothing which is swapped in between misleads a later step.
class FilePlace
{
public:
    /// The file need not exist, its folder must.
    ResultCode open(const std::filesystem::path& path);

    const std::filesystem::path& path() const { return m_path; }
    const std::filesystem::path& name() const { return m_name; }
    const platform::Folder& folder() const { return m_folder; }

    /// What stands there now.
    platform::FileStatus status() const { return m_folder.status(m_name); }
    /// That very file stands there, and the path as it was given still leads to it.
    bool names(const platform::FileStatus& file) const;
    /// Removes the entry; returns when that has reached the disk.
    ResultCode remove() const;

private:
    std::filesystem::path m_path;
    std::filesystem::path m_name;
    platform::Folder m_folder;
};

} // namespace tessaly::io
