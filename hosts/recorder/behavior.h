#pragma once

#include "host/kest_types.h"

#include <QSet>
#include <QSizeF>

#include <functional>
#include <optional>

namespace recorder {

/// How a recording host behaves. By default without faults; tests and measurements change it.
struct Behavior
{
    // What the services reply.

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
