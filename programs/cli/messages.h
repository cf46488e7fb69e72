#pragma once

#include <QString>

/// What the program says. Results go to standard output, everything else to standard error;
/// neither passes through Qt's logging, so that no logging rule changes them.
namespace cli {

/// One line of a result.
void printResult(const QString& line);

/// One message for a person: "labelport: " and the text.
void printMessage(const QString& text);

/// A text as it stands, on standard output: help and version.
void printText(const QString& text);

} // namespace cli
