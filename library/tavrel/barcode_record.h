#pragma once

#include "tavrel/item_header.h"

#include <QString>

namespace tavrel {

struct BarcodeRecord
{
    ItemHeader header;
    QString content;
    QString datasourceText;
    QString datasourceKey;
    qint32 symbology = 0;
    qint32 moduleWidth = 0; ///< whole points
    int textAlignment = 0;  ///< a Qt::Alignment
    bool flag1 = false;
    bool flag2 = false;
    bool flag3 = false;
    bool flag4 = false;
    int number = 0; ///< 0 when the stored text is no number
    qint32 value1 = 0;
    qint32 value2 = 0;

    /// The symbology's option: a number for one symbology, a flag as 0 or 1 for the rest.
    [[nodiscard]] int option() const;
};

[[nodiscard]] BarcodeRecord readBarcodeRecord(QDataStream& stream, const FileContext& file,
                                              qint64 itemNumber);

} // namespace tavrel
