#pragma once

#include "app/job/Message.h"
#include "app/job/Operation.h"
#include "app/queue/FileQueue.h"
#include "app/queue/QueueLook.h"

#include <QString>

namespace thisapp {

/// How a run ended, in one line with the folder of what was written.
Message queueMessage(Operation operation, const FileQueue& queue, bool isStopped);

/// What of the files that were given isn't in the list; empty when all are.
Message leftOutMessage(const QueueLook& look);

/// How many inputs were deleted after their encryption, and how many not.
Message removalMessage(std::size_t removed, std::size_t kept);

} // namespace thisapp
