#pragma once

#include "archive/worker_loop.h"

/// Does what the first word of a file says:
///
///   ok TEXT     writes TEXT to every output
///   fail        reports an error
///   crash       dies by a signal; crash-once only when the file is met for the first time
///   kill-once   is killed when the file is met for the first time
///   exit        ends the process
///   memory      takes all memory it can get
///   hang        does not end; writes its process id to FILE.hanging
///   slow        makes progress, but takes longer than two seconds
///   pid         writes the number of the process to every output
[[nodiscard]] archive::FileResult simulateFault(const archive::Job& job,
                                                const archive::Heartbeat& heartbeat);
