#pragma once

#include <QStringList>

namespace cli {

/// Runs the program labelport-trace, which stands beside this one, in place of this one:
/// a program has one set of host services, and tracing needs the recording host's.
///
/// @return an exit status when that program could not be started; otherwise it does not return
[[nodiscard]] int runTrace(const QStringList& arguments);

} // namespace cli
