#pragma once

#include <QByteArray>
#include <QString>

/// The output of a program. Results go to standard output, messages to standard error; neither
/// passes through Qt's logging, so that no logging rule changes them.
namespace console {

/// Exit statuses of the programs; scripts rely on them.
enum ExitStatus : int {
    ExitSuccess = 0,
    ExitFailure = 1,   ///< at least one file could not be imported or written
    ExitUsage = 2,     ///< the command line was wrong; nothing was done
    ExitLoss = 3,      ///< all files were imported, but not all of them completely (--fail-on-loss)
    ExitStopped = 130, ///< stopped by a signal, as shells count Ctrl-C
};

/// Must be called first in main(): writing to a closed pipe fails instead of ending the process,
/// and no file takes the descriptor of a standard stream that is closed.
///
/// @param name what messages begin with: "labelport"
void prepareStreams(const QString& name);

/// A name of a file, as a result. On a terminal it is escaped (shownFileName), elsewhere its bytes
/// are written. Ends with a line break, or with NUL.
void printFileName(const QString& name, bool endsWithNull);

/// A text on standard output: help, a description. Control characters are escaped.
void printText(const QString& text);
/// Bytes on standard output as they are: JSON.
void printBytes(const QByteArray& bytes);

/// The content of a file on standard output. Returns the user-visible error; empty
/// if it was.
[[nodiscard]] QString printFile(const QString& fileName);

/// A message on standard error, after the program's name. Control characters are
/// escaped.
void printMessage(const QString& text);

/// Writes what is still buffered. If standard output could not be written at any time, reports why
/// and returns ExitFailure instead of the given status.
[[nodiscard]] int finishOutput(int status);

} // namespace console
