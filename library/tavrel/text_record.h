#pragma once

#include "tavrel/item_header.h"

#include <QString>
#include <Qt>

namespace tavrel {

struct TextRecord
{
    /// Width and height hold the text's scale: 72 points stand for a scale of 1.
    ItemHeader header;
    double fixedWidth = -1.0;  ///< inches; the box's width is fixed when above 0
    double fixedHeight = -1.0; ///< inches; the box's height is fixed when above 0
    QString content;
    QString datasourceText;
    QString datasourceKey;
    quint16 penWidth = 0; ///< points
    qint32 penStyle = 0;
    qint32 fontSize = 0; ///< whole points
    bool styleFlag1 = false;
    bool styleFlag2 = false;
    bool styleFlag3 = false;
    Qt::Alignment alignment;
    bool inverse = false;
    bool transparentBackground = false;
    bool optionA = false;
    bool optionB = false;
};

[[nodiscard]] TextRecord readTextRecord(QDataStream& stream, const FileContext& file,
                                        qint64 itemNumber);

} // namespace tavrel
