#pragma once

#include <QDataStream>

namespace tavrel {

/// The start of a file. A preview picture follows it.
struct CanvasHeader
{
    quint32 version = 0;

    /// Whether the version is one that this reader knows; there is no upper bound.
    [[nodiscard]] bool isSupported() const;
};

[[nodiscard]] CanvasHeader readCanvasHeader(QDataStream& stream);

} // namespace tavrel
