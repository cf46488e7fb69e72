#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class QCommandLineParser;

namespace cli {

/// Reads the arguments of a command with --help. When there is nothing more to do (help was
/// shown, or the arguments were wrong and that was said), the exit status; else nothing.
///
/// @param command "labelport inspect"
[[nodiscard]] std::optional<int> parseCommand(QCommandLineParser& parser, const QString& command,
                                              const QStringList& arguments);

/// The help of a command, whose first line names the command as people type it.
[[nodiscard]] QString helpOf(const QCommandLineParser& parser, const QString& command);

/// Says what is wrong with the arguments of a command; returns the exit status for that.
[[nodiscard]] int refuseArguments(const QString& command, const QString& reason);

} // namespace cli
