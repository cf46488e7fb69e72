#pragma once

#include "tavrel/file_context.h"

#include <QDataStream>

namespace tavrel {

/// The page: its size, its supplies and the resolution that item records refer to.
struct CanvasRecord
{
    double width = 0.0;  ///< points
    double height = 0.0; ///< points
    qint32 labelType = 0;
    qint32 ribbonType = 0;
    bool canvasFlag = false;
    bool orientationFlag = false;
    Resolution resolution;
};

[[nodiscard]] CanvasRecord readCanvasRecord(QDataStream& stream, quint32 version);

} // namespace tavrel
