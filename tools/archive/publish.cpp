#include "archive/publish.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstring>

#include <cstdio>
#include <fcntl.h>

namespace archive {
namespace {

QString cannotWrite(const QString& path, const QString& reason)
{
    return QCoreApplication::translate("archive::Publish", "Cannot write \"%1\": %2.")
        .arg(path, reason);
}

/// Between two file systems nothing can be moved in one step: a copy beside the place comes
/// first. It keeps the time of the staged file, by which it will be known again.
QString copyInto(const StagedFile& file)
{
    QFile source(file.staged);
    QSaveFile copy(file.output.path);
    if (!source.open(QIODevice::ReadOnly) || !copy.open(QIODevice::WriteOnly)) {
        return cannotWrite(file.output.path, copy.errorString());
    }
    constexpr qint64 blockSize = 1024 * 1024;
    for (QByteArray block = source.read(blockSize); !block.isEmpty();
         block = source.read(blockSize)) {
        copy.write(block);
    }
    copy.flush();
    copy.setFileTime(QDateTime::fromMSecsSinceEpoch(file.output.modified),
                     QFileDevice::FileModificationTime);
    if (copy.error() != QFileDevice::NoError || !copy.commit()) {
        return cannotWrite(file.output.path, copy.errorString());
    }
    return {};
}

/// Moves a file; 0 or the system's error number.
int moveFile(const QByteArray& from, const QByteArray& to, bool mayReplace)
{
    if (!mayReplace) {
        if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) ==
            0) {
            return 0;
        }
        // Some network file systems cannot do both at once.
        if (errno != EINVAL && errno != ENOSYS) {
            return errno;
        }
        if (QFileInfo::exists(QFile::decodeName(to))) {
            return EEXIST;
        }
    }
    return ::rename(from.constData(), to.constData()) == 0 ? 0 : errno;
}

} // namespace

QString notOursWords(const QString& path)
{
    return QCoreApplication::translate(
               "archive::Publish",
               "%1 exists and was not made by labelport, or may have been changed since; it is "
               "left as it is (--force overwrites it)")
        .arg(path);
}

QString publish(const StagedFile& file)
{
    const QString& path = file.output.path;
    if (!QDir().mkpath(QFileInfo(path).path())) {
        return cannotWrite(
            path, QCoreApplication::translate("archive::Publish", "its folder cannot be made"));
    }
    const int error =
        moveFile(QFile::encodeName(file.staged), QFile::encodeName(path), file.mayReplace);
    switch (error) {
    case 0:
        return {};
    case EEXIST:
        return notOursWords(path);
    case EXDEV:
        return !file.mayReplace && QFileInfo::exists(path) ? notOursWords(path) : copyInto(file);
    default:
        return cannotWrite(path, QString::fromLocal8Bit(std::strerror(error)));
    }
}

} // namespace archive
