#pragma once

namespace cli {

/// Exit statuses of the program; scripts rely on them.
enum ExitStatus : int {
    ExitSuccess = 0,
    ExitFailure = 1,   ///< at least one file could not be imported or written
    ExitUsage = 2,     ///< the command line was wrong; nothing was done
    ExitLoss = 3,      ///< all files were imported, but not all of them whole (--fail-on-loss)
    ExitStopped = 130, ///< a signal stopped it, as shells count Ctrl-C
};

} // namespace cli
