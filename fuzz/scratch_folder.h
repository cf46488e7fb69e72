#pragma once

#include <QByteArray>
#include <QString>

/// Files for what can only be tested on them. They stand in a folder of the process's own, in
/// memory where the system has such a place.

/// The path of a file of the folder, which need not exist.
[[nodiscard]] QString scratchPath(const char* name);
/// Writes a file of the folder anew.
void writeScratch(const char* name, const QByteArray& bytes);
/// What a file of the folder holds; nothing when there is none.
[[nodiscard]] QByteArray readScratch(const char* name);
