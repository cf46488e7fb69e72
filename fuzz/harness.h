#pragma once

#include <QByteArray>
#include <QString>

/// Defined by each fuzz target: passes one input to the code under test, as a host would. Called
/// many times in one process; must not keep state or leave files.
void fuzzOneInput(const QByteArray& input);

/// A path to open the bytes as a file during the lifetime of the object. The file exists only
/// in memory.
class MemoryFile
{
public:
    explicit MemoryFile(const QByteArray& bytes);
    ~MemoryFile();
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    [[nodiscard]] QString path() const;

private:
    int m_descriptor = -1;
};
