#include "tavrel/symbol_record.h"

#include "tavrel/bounded_stream.h"
#include "tavrel/file_versions.h"

namespace tavrel {
namespace {

SymbolRecord readNameOnly(QDataStream& stream, const FileContext& file, qint64 itemNumber)
{
    SymbolRecord record;
    record.header = readItemHeader(stream, file, itemNumber);
    record.name = readText(stream);
    return record;
}

SymbolRecord readNameAndData(QDataStream& stream, const FileContext& file, qint64 itemNumber)
{
    SymbolRecord record = readNameOnly(stream, file, itemNumber);
    record.data = readBytes(stream);
    return record;
}

constexpr std::array Layouts{
    Layout{OldestVersion, &readNameOnly},
    Layout{FirstWithSymbolData, &readNameAndData},
};

} // namespace

SymbolRecord readSymbolRecord(QDataStream& stream, const FileContext& file, qint64 itemNumber)
{
    return layoutFor(Layouts, file.version)(stream, file, itemNumber);
}

} // namespace tavrel
