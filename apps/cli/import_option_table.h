#pragma once

class QCommandLineParser;

namespace cli {

/// Tells a parser the options of `labelport import`, with their help.
void addImportOptions(QCommandLineParser& parser);

} // namespace cli
