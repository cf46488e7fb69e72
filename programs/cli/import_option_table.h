#pragma once

class QCommandLineParser;

namespace cli {

/// Tells a parser the options of `labelport import`, with their help.
void addImportOptions(QCommandLineParser& parser);
/// Those of them that bound what a file may take, for other commands that open files.
void addLimitOptions(QCommandLineParser& parser);

} // namespace cli
