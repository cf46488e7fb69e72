#pragma once

#include <QString>

class QIODevice;

/// Imports a file into a recording host.
///
/// @param out receives the trace, from the start line to the end line, whatever happens
/// @return whether the label was imported
[[nodiscard]] bool traceImport(const QString& fileName, QIODevice& out);
