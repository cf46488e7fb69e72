#include "tavrel/database_list.h"

#include "tavrel/bounded_stream.h"

namespace tavrel {
namespace {

bool isFilePath(const QString& path)
{
    return path.contains(QLatin1Char('/')) || path.contains(QLatin1Char('\\'));
}

} // namespace

bool readDatabaseList(QDataStream& stream)
{
    readInt32(stream);
    readInt32(stream);
    const qint32 selected = readInt32(stream);
    const qint32 count = readInt32(stream);
    bool linked = false;
    // The count may claim anything: the stream's end is what stops. All entries are read,
    // because the items stand behind the last one.
    for (qint32 i = 0; i < count && !stream.atEnd(); ++i) {
        const QString path = readText(stream);
        readInt32(stream);
        linked = linked || (i == selected && isFilePath(path));
    }
    return linked;
}

} // namespace tavrel
