#pragma once

#include "tavrel/item_header.h"

#include <QByteArray>
#include <QString>

namespace tavrel {

struct SymbolRecord
{
    ItemHeader header;
    QString name;    ///< a file name or path
    QByteArray data; ///< an SVG document, or empty: the name is all there is
};

[[nodiscard]] SymbolRecord readSymbolRecord(QDataStream& stream, const FileContext& file,
                                            qint64 itemNumber);

} // namespace tavrel
