#include "archive/staging_area.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

namespace archive {
namespace {

const QString Prefix = QStringLiteral(".labelport-work-");
const QString LockName = QStringLiteral("lock");

/// A command that makes its folder has not locked it for a moment.
bool isJustBeingMade(const QFileInfo& folder)
{
    constexpr qint64 moment = 60;
    return !QFileInfo::exists(QDir(folder.filePath()).filePath(LockName)) &&
           folder.lastModified().secsTo(QDateTime::currentDateTime()) < moment;
}

void removeAbandoned(const QString& outputFolder)
{
    const QFileInfoList folders = QDir(outputFolder)
                                      .entryInfoList({Prefix + QLatin1Char('*')},
                                                     QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo& folder : folders) {
        if (isJustBeingMade(folder)) {
            continue;
        }
        QDir stray(folder.filePath());
        const FileLock lock =
            FileLock::tryLock(stray.filePath(LockName), FileLock::Exclusive, true);
        if (lock.isHeld()) {
            stray.removeRecursively();
        }
    }
}

QString cannotWriteTo(const QString& folder)
{
    return QCoreApplication::translate("archive::StagingArea",
                                       "Nothing can be written to the folder %1.")
        .arg(folder);
}

} // namespace

StagingArea::~StagingArea()
{
    close();
}

QString StagingArea::open(const QString& outputFolder)
{
    if (!QDir().mkpath(outputFolder)) {
        return QCoreApplication::translate("archive::StagingArea", "The folder %1 cannot be made.")
            .arg(outputFolder);
    }
    removeAbandoned(outputFolder);
    QTemporaryDir folder(QDir(outputFolder).filePath(Prefix + QStringLiteral("XXXXXX")));
    if (!folder.isValid()) {
        return cannotWriteTo(outputFolder);
    }
    m_lock = FileLock::tryLock(folder.filePath(LockName), FileLock::Exclusive, true);
    if (!m_lock.isHeld()) {
        return cannotWriteTo(outputFolder);
    }
    folder.setAutoRemove(false);
    m_path = QFileInfo(folder.path()).absoluteFilePath();
    return {};
}

void StagingArea::close()
{
    if (!m_path.isEmpty()) {
        QDir(m_path).removeRecursively();
        m_path.clear();
        m_lock.release();
    }
}

QString StagingArea::emptySlot(int number) const
{
    QDir slot(QDir(m_path).filePath(QString::number(number)));
    if (slot.exists() && !slot.isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden)) {
        slot.removeRecursively();
    }
    slot.mkpath(QStringLiteral("."));
    return slot.path();
}

} // namespace archive
