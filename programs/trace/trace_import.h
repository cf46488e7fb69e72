#pragma once

#include "importer/reader_choice.h"

#include <QString>

class QIODevice;

/// Imports a file into a recording host.
///
/// @param path what is opened
/// @param name of the file, as the trace shows it
/// @param out  receives the trace, from the start line to the end line, whatever happens
/// @return whether the label was imported
[[nodiscard]] bool traceImport(const QString& path, const QString& name, ReaderKind reader,
                               QIODevice& out);
