#pragma once

#include <QHash>
#include <QList>
#include <QPointF>

#include <functional>

class QTextBlock;

namespace workbench {
class CanvasItem;
}

namespace repair {

/// A mark in a text.
struct Mark
{
    int number = 0;
    int paragraph = 0;
    QPointF corner;   ///< of its picture, from the corner of the text's item
    double top = 0.0; ///< of its line
};

/// The marks that objects left in the text of an item.
[[nodiscard]] QList<Mark> marksOf(workbench::CanvasItem& item);

/// Moves marks with lines beside them to the first line that is beside their object: lines above
/// it have the whole width. All other marks keep their place.
///
/// @param topOf points from a paragraph's top to the object of a mark
/// @return by the numbers of the marks that were moved: points that they are lower now
[[nodiscard]] QHash<int, double> lowerMarks(workbench::CanvasItem& item,
                                            const std::function<double(int number)>& topOf);

/// How many marks with lines beside them are behind a character of a paragraph: in the document
/// they are at its start.
[[nodiscard]] int marksBehind(const QTextBlock& block, int character);

} // namespace repair
