#include "host/services/file_controller_tools.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

QString FileControllerTools::getDefaultImportFolder()
{
    const QString last = QSettings().value(u"dir/import"_s).toString();
    if (!last.isEmpty() && QDir(last).exists()) {
        return last;
    }
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}
