#pragma once

#include "archive/worker_loop.h"

/// A worker that a hostile file has taken over: does what the file says, line by line.
///
///   write TEXT       writes TEXT to every output, as a good worker does
///   read PATH        reads a file, and writes its content to every output
///   spoil PATH       writes to a file
///   create PATH      creates a file
///   remove PATH      removes a file
///   connect PORT     connects to a port of this machine
///   execute PATH     runs a program
///   fork             forks a thousand times
///   thread           starts a thread, as image decoders do
///   trace            attaches to its parent
///   kill             sends its parent a signal
///   call NUMBER      a system call without arguments
///   claim PATH       says that it wrote PATH
///   place PATH       says that its output belongs at PATH
///   link PATH        says that it wrote a file that is a link to PATH
///
/// What the system refuses is an error of the file: "read: Permission denied".
[[nodiscard]] archive::FileResult misbehave(const archive::Job& job,
                                            const archive::Heartbeat& heartbeat);
