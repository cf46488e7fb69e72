#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class QCommandLineParser;

namespace console {

/// The arguments of main() after the program's name, as file names that keep every byte.
[[nodiscard]] QStringList argumentsOf(int argc, char** argv);

/// Reads the arguments of a command with --help. Returns the exit status if the command must not
/// continue: after help, or after an error in the arguments, which is reported.
///
/// @param command as users type it: "labelport inspect"
[[nodiscard]] std::optional<int> parseCommand(QCommandLineParser& parser, const QString& command,
                                              const QStringList& arguments);

/// Reports what is wrong with the arguments of a command; returns the exit status for that.
[[nodiscard]] int refuseArguments(const QString& command, const QString& reason);

/// ` Did you mean "import"?` with the known word that is nearest; empty if none is near.
[[nodiscard]] QString suggestion(const QString& word, const QStringList& known);

} // namespace console
