#pragma once

#include "lib/platform/File.h"
#include "lib/platform/windows/SystemCall.h"

#include <functional>

/// What files and folders share.
namespace tessaly::platform {

/// Of an open file; with its access when it was opened for that, see accessFingerprint.
ResultCode handleStatus(HANDLE file, FileStatus& status);

/// Of what stands at a path or in a folder, as fileStatus gives it. `open` opens it to look at, following
/// links or not; an empty handle when it cannot.
FileStatus lookedAt(const std::function<OwnHandle(bool followsLinks)>& open);

} // namespace tessaly::platform
