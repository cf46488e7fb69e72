#include "archive/publish.h"

#include "console/file_name.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace archive {
namespace {

using namespace Qt::StringLiterals;

struct PublishTr
{
    Q_DECLARE_TR_FUNCTIONS(archive::Publish)
};

/// Moves a file; returns 0 or the system's error number.
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
        std::error_code ignored;
        if (std::filesystem::exists(to.toStdString(), ignored)) {
            return EEXIST;
        }
    }
    return ::rename(from.constData(), to.constData()) == 0 ? 0 : errno;
}

/// A file cannot be moved to another file system in one step: it is copied to a hidden file in the
/// folder of the output, which is then renamed. Keeps the time, which identifies the file.
int copyFile(const QByteArray& from, const QString& output, bool mayReplace)
{
    const QFileInfo info(output);
    const QByteArray copy = console::fileNameToBytes(
        info.dir().filePath(u".labelport-copy-%1-%2"_s.arg(::getpid()).arg(info.fileName())));
    const std::filesystem::path source = from.toStdString();
    const std::filesystem::path target = copy.toStdString();
    std::error_code error;
    std::filesystem::copy_file(source, target, std::filesystem::copy_options::overwrite_existing,
                               error);
    if (!error) {
        const auto time = std::filesystem::last_write_time(source, error);
        std::filesystem::last_write_time(target, time, error);
    }
    const int failure =
        error ? error.value() : moveFile(copy, console::fileNameToBytes(output), mayReplace);
    if (failure != 0) {
        std::error_code ignored;
        std::filesystem::remove(target, ignored);
    }
    return failure;
}

} // namespace

QString cannotWrite(const QString& path, const QString& reason)
{
    return PublishTr::tr("Cannot write \"%1\": %2.").arg(path, reason);
}

QString folderInPlaceMessage(const QString& path)
{
    return cannotWrite(path, PublishTr::tr("a folder of that name exists"));
}

QString foreignFileMessage(const QString& path)
{
    return PublishTr::tr(
               "\"%1\" exists, and it was not written by labelport or has been edited since. Use "
               "--force to overwrite it.")
        .arg(path);
}

QString publish(const StagedFile& file, bool mayReplace)
{
    const QString& path = file.output.path;
    const QString folder = QFileInfo(path).path();
    const QString folderError = console::makeFolder(folder);
    if (!folderError.isEmpty()) {
        return PublishTr::tr("Cannot create folder \"%1\": %2.").arg(folder, folderError);
    }
    if (console::kindOf(path) == console::FileKind::Folder) {
        return folderInPlaceMessage(path);
    }
    const QByteArray staged = console::fileNameToBytes(file.staged);
    int error = moveFile(staged, console::fileNameToBytes(path), mayReplace);
    if (error == EXDEV) {
        error = copyFile(staged, path, mayReplace);
    }
    if (error == EEXIST) {
        return foreignFileMessage(path);
    }
    return error == 0 ? QString() : cannotWrite(path, QString::fromLocal8Bit(std::strerror(error)));
}

void publishAll(FileResult& result, const std::function<bool(const QString& path)>& mayReplace)
{
    QList<StagedFile> published;
    for (const StagedFile& file : std::as_const(result.files)) {
        QString error = publish(file, false);
        if (!error.isEmpty() && mayReplace && mayReplace(file.output.path)) {
            error = publish(file, true);
        }
        if (error.isEmpty()) {
            published.append(file);
        } else {
            result.errors.append(error);
            result.outcome =
                result.outcome == FileOutcome::Done ? FileOutcome::Failed : result.outcome;
        }
    }
    result.files = published;
}

} // namespace archive
