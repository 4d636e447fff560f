#pragma once

/// What the process ends with; scripts rely on these numbers.
namespace cli {

enum ExitCode : int {
    Done = 0,
    Failed = 1,
    Usage = 2,
    WrongKeyOrDamaged = 3,
    Interrupted = 130,
};

} // namespace cli
