#pragma once

#include "app/job/RequestFacts.h"
#include "app/queue/QueueEntry.h"
#include "common/naming/NamingSettings.h"

#include <QStringList>

#include <filesystem>
#include <vector>

/// What the file system says of a list of files. Any thread; as slow as the file system.
namespace thisapp {

struct QueueLook
{
    std::vector<QueueEntry> files; ///< those that can be processed
    bool isFolderLeftOut = false;  ///< or a device
    QStringList missing;           ///< the names of those that are not there
};

QueueLook lookAtFiles(const QStringList& texts);

/// One file just before its turn.
struct EntryLook
{
    RequestFacts facts;
    std::filesystem::path output;                ///< by the naming rules
    tessaly::platform::FileStatus atOutput = {}; ///< what stands there
};

/// The rules count whether or not names are proposed otherwise: there is no other source of a name.
EntryLook lookAtEntry(const std::filesystem::path& input, NamingSettings naming);

} // namespace thisapp
