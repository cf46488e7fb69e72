#include "fuzz/harness.h"

#include <cstdlib>

#include <sys/mman.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

MemoryFile::MemoryFile(const QByteArray& bytes)
    : m_descriptor(::memfd_create("input", MFD_CLOEXEC))
{
    if (m_descriptor < 0 || ::write(m_descriptor, bytes.constData(), size_t(bytes.size())) < 0) {
        std::abort(); // Nothing can be tested without the input.
    }
}

MemoryFile::~MemoryFile()
{
    ::close(m_descriptor);
}

QString MemoryFile::path() const
{
    return u"/proc/self/fd/%1"_s.arg(m_descriptor);
}
