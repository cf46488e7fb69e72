#pragma once

#include <QStringList>

/// The commands of labelport. Each gets the arguments after its name and returns the exit status.
namespace cli {

[[nodiscard]] int runImport(const QStringList& arguments);
[[nodiscard]] int runPrint(const QStringList& arguments);
[[nodiscard]] int runInspect(const QStringList& arguments);
[[nodiscard]] int runRecords(const QStringList& arguments);
[[nodiscard]] int runList(const QStringList& arguments);
[[nodiscard]] int runReport(const QStringList& arguments);
[[nodiscard]] int runFormats(const QStringList& arguments);

/// Runs the program labelport-trace, which is installed next to this one, in place of this one: a
/// program has one set of host services, and tracing needs those of the recording host. Returns
/// only if that program cannot be started.
[[nodiscard]] int runTrace(const QStringList& arguments);

} // namespace cli
