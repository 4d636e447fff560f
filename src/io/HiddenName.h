#pragma once

#include "io/FilePlace.h"
#include "lib/platform/File.h"

#include <filesystem>
#include <memory>

namespace tessaly::io {

/// A hidden name of ours in the folder of an output, noted as long as it is in use, so that no way out of
/// the program leaves it behind. One thread, but for the static operations.
class HiddenName
{
public:
    HiddenName() = default;
    ~HiddenName() { release(); }
    HiddenName(const HiddenName&) = delete;
    HiddenName& operator=(const HiddenName&) = delete;

    /// That nothing stands under.
    static std::filesystem::path fresh();

    bool isSet() const { return !m_name.empty(); }
    const std::filesystem::path& name() const { return m_name; }
    /// Takes a new one, which nothing stands under yet.
    void choose(std::shared_ptr<const FilePlace> place);
    /// Forgets it; what stands there stays.
    void release();

    /// What stands there; of kind Missing without a name.
    platform::FileStatus status() const;
    /// Removes what stands there unless it is seen to be another than that file, and forgets the name.
    /// False when nothing was removed.
    bool remove(const platform::FileStatus& file);

    /// Removes what killed processes have left in the folder. Whoever still uses such a file holds its lock.
    static void removeForsaken(const platform::Folder& folder);
    /// Removes all that are in use, for an end of the process in the middle of a job.
    static void removeAll();

private:
    std::shared_ptr<const FilePlace> m_place;
    std::filesystem::path m_name;
};

} // namespace tessaly::io
