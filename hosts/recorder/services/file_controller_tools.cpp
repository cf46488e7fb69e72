#include "host/services/file_controller_tools.h"

#include <QDir>

QString FileControllerTools::getDefaultImportFolder()
{
    return QDir::homePath();
}
