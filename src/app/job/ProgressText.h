#pragma once

#include "app/job/Operation.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace thisapp {

class ProgressTracker;

/// What a job is busy with.
enum class JobPhase {
    Processing,
    DerivingKey,   ///< of a sealed file; before the processing, or between two attempts at it
    Flushing,      ///< all is written, the disk has yet to store it
    RemovingInput, ///< after the end of the job proper
};

/// The three sentences under the progress bar: the step, the percentage and the remaining time, as far
/// as they are known.
QString progressText(Operation operation, JobPhase phase, const ProgressTracker& progress);

/// What the display shows until the first report.
QString startText();

/// "Remaining time: ..." in the largest unit that it needs.
QString remainingTimeText(std::int64_t seconds);

/// How much was done in which time, for a job that is complete; how fast, unless it took too short for that.
QString summaryText(std::int64_t bytes, std::int64_t elapsedMs);

} // namespace thisapp
