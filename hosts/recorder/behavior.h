#pragma once

#include "host/kest_types.h"

#include <QSet>
#include <QSizeF>

#include <functional>
#include <optional>

namespace recorder {

/// How a recording host behaves. At first without a fault; tests and measurements change it.
struct Behavior
{
    // Answers.

    /// The size that every symbol has; if unset, that of its drawing.
    std::optional<QSizeF> symbolSize;
    /// What the symbol creator does with a drawing.
    enum class Conversion {
        OfSvg,      ///< converts SVG documents, and nothing else
        OfAnything, ///< gives "symbol of " and the drawing, whatever that is
        Fails,      ///< reports failure, and has no symbol
        Loses,      ///< reports success, and has no symbol
    };
    Conversion conversion = Conversion::OfSvg;

    // Faults.

    bool hasFactory = true;
    QSet<KestTypes::ShapeType> makesNothingOf;
    /// Types for which the factory makes an item of another class.
    QSet<KestTypes::ShapeType> makesOthersOf;
    /// The canvas deletes the items that it is given.
    bool deletesItems = false;
    /// Data sources have numbers, but do not exist.
    bool losesDatasources = false;
    bool sourcesHaveFields = true;
    /// Called for each item that the canvas is given, before it takes it.
    std::function<void()> onImportItem;
};

} // namespace recorder
