#pragma once

#include <QByteArray>
#include <QString>

/// Files for code that needs real files. They are in a temporary folder of the process, in
/// memory if the system has such a file system.

/// The path of a file in the folder. The file need not exist.
[[nodiscard]] QString scratchPath(const char* name);
/// Writes or replaces a file in the folder.
void writeScratch(const char* name, const QByteArray& bytes);
/// The content of a file in the folder; empty if the file does not exist.
[[nodiscard]] QByteArray readScratch(const char* name);
