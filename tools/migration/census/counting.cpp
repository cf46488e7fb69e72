#include "migration/census/counting.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace migration {

QString tooLargeToCount()
{
    return QCoreApplication::translate("migration::Census",
                                       "The file is too large to count its objects.");
}

void refuseTooMany(Census& census)
{
    if (census.objects.size() > MaximumObjects) {
        census.unknown = tooLargeToCount();
    }
}

QByteArray bytesToCount(const QString& fileName, QString& unknown)
{
    QFile file(fileName);
    // Opening a pipe or a device could wait for ever.
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly)) {
        unknown = QCoreApplication::translate("migration::Census",
                                              "The file cannot be opened to count its objects.");
        return {};
    }
    if (file.size() > MaximumFile) {
        unknown = tooLargeToCount();
        return {};
    }
    // Not the maximum, which would be reserved.
    return file.read(file.size());
}

} // namespace migration
