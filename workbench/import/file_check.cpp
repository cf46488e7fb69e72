#include "workbench/import/file_check.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace workbench {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("workbench::FileCheck", text);
}

} // namespace

QString whyFileCannotBeRead(const QString& fileName)
{
    const QFileInfo info(fileName);
    if (fileName.isEmpty()) {
        return tr("No file was named.");
    }
    if (!info.exists()) {
        return tr("There is no such file.");
    }
    if (info.isDir()) {
        return tr("This is a folder, not a file.");
    }
    if (!info.isFile()) {
        return tr("This is not a regular file.");
    }
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return tr("The file cannot be opened: %1.").arg(file.errorString());
    }
    return file.size() == 0 ? tr("The file is empty.") : QString();
}

} // namespace workbench
