#pragma once

#include <QByteArray>
#include <QString>

/// What a fuzz target's source defines: hands one input to the code under test, as a host
/// would. Called many times in one process; must leave nothing behind.
void fuzzOneInput(const QByteArray& input);

/// A path under which the bytes can be opened as a file while the object lives. The file
/// stands in memory only.
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
