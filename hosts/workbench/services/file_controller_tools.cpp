#include "host/services/file_controller_tools.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

QString FileControllerTools::getDefaultImportFolder()
{
    const QString last = QSettings().value(QStringLiteral("dir/import")).toString();
    if (!last.isEmpty() && QDir(last).exists()) {
        return last;
    }
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}
