#include "migration/census/census.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace migration {

void Tally::addDetail(const QString& detail)
{
    const QString shortened = detail.left(kLongestDetail);
    if (!shortened.isEmpty() && details.size() < MaximumDetails && !details.contains(shortened)) {
        details.append(shortened);
    }
}

void Census::note(LossKind kind, qint64 count, const QString& detail)
{
    Tally& tally = tallies[kind];
    tally.count += count;
    tally.addDetail(detail);
}

void Census::detail(LossKind kind, const QString& detail)
{
    tallies[kind].addDetail(detail);
}

QString tooLargeToCount()
{
    return QCoreApplication::translate("migration::Census",
                                       "The file is too large to count its objects.");
}

void refuseTooMany(Census& census)
{
    if (census.objects.size() > kMaximumObjects) {
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
    if (file.size() > kMaximumFile) {
        unknown = tooLargeToCount();
        return {};
    }
    return file.read(kMaximumFile);
}

} // namespace migration
