#pragma once

#include "host/kest_types.h"

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QSizeF>
#include <QString>

#include <functional>
#include <optional>

namespace recorder {

/// How a recording host behaves. By default without faults; tests and measurements change it.
struct Behavior
{
    // What items and services reply.

    /// The size of every new item, in points.
    QSizeF itemSize{0, 0};
    /// The width of a character of rich text, in points. A text is at most as wide as its box; if
    /// 0, exactly as wide.
    double characterWidth = 0;
    /// The size of every symbol; if unset, that of its drawing.
    std::optional<QSizeF> symbolSize;
    /// How the symbol creator converts a drawing.
    enum class Conversion {
        OfSvg,      ///< converts SVG documents, and nothing else
        OfAnything, ///< returns "symbol of " and the drawing, whatever its format
        Fails,      ///< reports failure, and has no symbol
        StaysEmpty, ///< reports success, and has no symbol
    };
    Conversion conversion = Conversion::OfSvg;
    /// The content of the symbol databases, by path and then by symbol name; if unset, the
    /// databases' files are read.
    std::optional<QHash<QString, QHash<QString, QByteArray>>> symbols;

    // What the trace contains.

    /// Also an item's layer, lock and position, which are Qt's own operations: setZValue,
    /// setMovable, setPos. For items that are created from now on.
    bool recordsPlacement = false;

    // Faults.

    bool hasFactory = true;
    QSet<KestTypes::ShapeType> refusedTypes;
    /// Types for which the factory returns an item of another class.
    QSet<KestTypes::ShapeType> mismatchedTypes;
    /// The canvas deletes the items that are added.
    bool deletesItems = false;
    /// Data sources have identifiers, but do not exist.
    bool hidesDatasources = false;
    bool sourcesHaveFields = true;
    /// Called for each item before the canvas adds it.
    std::function<void()> onImportItem;
};

} // namespace recorder
