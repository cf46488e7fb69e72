#include "fuzz/scratch_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

QString place()
{
    const QString memory = u"/dev/shm"_s;
    return QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
}

} // namespace

QString scratchPath(const char* name)
{
    static const QTemporaryDir folder(place() + u"/labelport-fuzz-XXXXXX"_s);
    return folder.filePath(QString::fromLatin1(name));
}

void writeScratch(const char* name, const QByteArray& bytes)
{
    QFile file(scratchPath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        std::abort(); // Nothing can be tested without the input.
    }
}

QByteArray readScratch(const char* name)
{
    QFile file(scratchPath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
