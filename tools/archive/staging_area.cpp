#include "archive/staging_area.h"

#include "console/file_name.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cerrno>
#include <cstring>
#include <filesystem>

namespace archive {
using namespace Qt::StringLiterals;
namespace {

const QString Prefix = u".labelport-work-"_s;
const QString StagingLockName = u"lock"_s;

/// The folder of another command exists for a moment before it is locked.
bool isBeingCreated(const QFileInfo& folder)
{
    constexpr qint64 moment = 60;
    return !QFileInfo::exists(QDir(folder.filePath()).filePath(StagingLockName)) &&
           folder.lastModified().secsTo(QDateTime::currentDateTime()) < moment;
}

void removeAbandoned(const QString& outputFolder)
{
    const QFileInfoList folders =
        QDir(outputFolder)
            .entryInfoList({Prefix + u'*'}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo& folder : folders) {
        if (isBeingCreated(folder)) {
            continue;
        }
        QDir abandoned(folder.filePath());
        const FileLock lock =
            FileLock::tryLock(abandoned.filePath(StagingLockName), FileLock::Exclusive, true);
        if (lock.isHeld()) {
            abandoned.removeRecursively();
        }
    }
}

QString cannotWriteTo(const QString& folder, const QString& reason)
{
    return QCoreApplication::translate("archive::StagingArea", "Cannot write to \"%1\": %2.")
        .arg(folder, reason);
}

QString cannotCreate(const QString& folder, const QString& reason)
{
    const bool isFile = console::kindOf(folder) == console::FileKind::File;
    return QCoreApplication::translate("archive::StagingArea", "Cannot create folder \"%1\": %2.")
        .arg(folder, isFile ? QCoreApplication::translate("archive::StagingArea",
                                                          "a file of that name exists")
                            : reason);
}

} // namespace

StagingArea::~StagingArea()
{
    close();
}

QString StagingArea::open(const QString& outputFolder)
{
    const QString error = console::makeFolder(outputFolder);
    if (!error.isEmpty()) {
        return cannotCreate(outputFolder, error);
    }
    const console::ReachablePath reachable(outputFolder);
    removeAbandoned(reachable.path());
    // Another command may take the folder for an abandoned one and remove it before it is locked.
    constexpr int attempts = 100;
    QString reason;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        QTemporaryDir folder(QDir(reachable.path()).filePath(Prefix + u"XXXXXX"_s));
        if (!folder.isValid()) {
            return cannotWriteTo(outputFolder, folder.errorString());
        }
        const QString lockName = folder.filePath(StagingLockName);
        m_lock = FileLock::tryLock(lockName, FileLock::Exclusive, true);
        reason = QString::fromLocal8Bit(std::strerror(errno));
        if (m_lock.isHeld() && QFileInfo::exists(lockName)) {
            folder.setAutoRemove(false);
            m_path = QDir(console::absolutePath(outputFolder))
                         .filePath(QFileInfo(folder.path()).fileName());
            return {};
        }
    }
    return cannotWriteTo(outputFolder, reason);
}

void StagingArea::close()
{
    if (!m_path.isEmpty()) {
        std::error_code ignored;
        std::filesystem::remove_all(console::systemPath(m_path), ignored);
        m_path.clear();
        m_lock.release();
    }
}

QString StagingArea::emptySlot(int number) const
{
    const QString slot = QDir(m_path).filePath(QString::number(number));
    const std::filesystem::path path = console::systemPath(slot);
    std::error_code ignored;
    std::filesystem::create_directory(path, ignored);
    // The folder itself is kept: the permission of the worker is for this folder, not for its name.
    for (const auto& entry : std::filesystem::directory_iterator(path, ignored)) {
        std::filesystem::remove_all(entry.path(), ignored);
    }
    return slot;
}

} // namespace archive
