#pragma once

#include "lib/platform/File.h"

#include <QString>

#include <cstdint>
#include <filesystem>
#include <functional>

namespace thisapp {

enum class EntryState {
    Waiting,
    Running,
    Done,
    Failed,
    Skipped, ///< nothing was tried
};

/// One file of the list that is processed in one go.
struct QueueEntry
{
    std::filesystem::path path; ///< absolute
    tessaly::platform::FileStatus file;
    EntryState state = EntryState::Waiting;
    std::int64_t processed = 0; ///< in bytes, while it is running
    /// Why it failed or was skipped; of one that is done, what else there is to say. May be none.
    std::function<QString()> reason = {};
    /// Where its output stands, and as what; once it is done.
    std::filesystem::path output = {};
    tessaly::platform::FileStatus written = {};
};

} // namespace thisapp
