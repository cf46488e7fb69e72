#pragma once

namespace sandbox {

/// Whether the kernel and this build of the program support filters of system calls.
[[nodiscard]] bool canFilterCalls();

/// Restricts this process to the system calls that an import needs, irrevocably.
///
/// A call that no import makes and an attacker needs (to run programs, to start processes, to
/// trace others, to mount, to enter namespaces, to use keys) ends the process with SIGSYS. Sockets
/// are refused, because the name services of the system try them. All other calls fail as on a
/// kernel without them, so that a library falls back to older ones.
///
/// @return whether the filter is active
[[nodiscard]] bool filterCalls();

} // namespace sandbox
