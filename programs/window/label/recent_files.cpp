#include "window/label/recent_files.h"

#include <QFileInfo>
#include <QSettings>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

QString settingsKey()
{
    return u"window/recentFiles"_s;
}

QString absoluteName(const QString& fileName)
{
    return QFileInfo(fileName).absoluteFilePath();
}

void store(const QStringList& files)
{
    QSettings().setValue(settingsKey(), files);
}

} // namespace

QStringList RecentFiles::files() const
{
    return QSettings().value(settingsKey()).toStringList().mid(0, MaximumCount);
}

void RecentFiles::add(const QString& fileName)
{
    QStringList names = files();
    names.removeAll(absoluteName(fileName));
    names.prepend(absoluteName(fileName));
    store(names.mid(0, MaximumCount));
}

void RecentFiles::remove(const QString& fileName)
{
    QStringList names = files();
    names.removeAll(absoluteName(fileName));
    store(names);
}

void RecentFiles::clear()
{
    store({});
}

} // namespace window
