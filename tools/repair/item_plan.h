#pragma once

#include <QColor>
#include <QList>
#include <QMarginsF>
#include <QRectF>
#include <QString>
#include <Qt>

#include <optional>

namespace repair {

class Document;

/// What a text looks like that the reader cannot carry.
struct TextPlan
{
    QString html;
    /// Where the text may be, in points on the page, before rotation.
    QRectF area;
    /// Degrees, clockwise, about the center of the shape.
    double rotation = 0.0;
    QPointF center;
    Qt::Alignment alignment = Qt::AlignTop;
    /// Whether the text is at least as wide as the area: else it is as wide as its lines, and
    /// the alignment places it.
    bool fillsWidth = true;
    bool wraps = true;
    /// Whether the fonts shrink until the text fits the area, or also grow until it fills it.
    enum class Fit { None, Shrink, Fill };
    Fit fit = Fit::None;
};

/// Before the number of a mark: the name of the invisible picture that keeps an object's room in a
/// text.
inline const QString MarkPrefix = QLatin1String("mark-");

/// A border on one side of a paragraph.
struct ParagraphEdge
{
    int text = 0;      ///< the order of the object with the text
    int paragraph = 0; ///< of the text
    QString side = {};
    QMarginsF margins = {};  ///< between the text's sides and the lines, in points
    QMarginsF insets = {};   ///< between the lines and the outside of the border
    bool joinsAfter = false; ///< whether the next paragraph is within the same border
    /// About where the lines are, below the top of the row, if the text shows no words.
    QRectF estimate = {};
};

/// What to set on the items of one object after the import.
struct ItemPlan
{
    /// The object's draw:z-index. The reader makes it a thousand times the item's z value; the
    /// text of the object has 0.001 more.
    int order = 0;
    std::optional<TextPlan> text;
    /// Points; nothing if the object has no pen.
    std::optional<double> penWidth;
    double penOpacity = 1.0;
    double fillOpacity = 1.0;
    /// The row of a text document's page, which is placed below the one before; 0 for an object
    /// with a place of its own.
    int row = 0;
    /// The mark that the object left in a text; 0 if it left none. Its place is relative to the
    /// mark.
    int mark = 0;
    /// Whether its place across the page is also relative to the mark.
    bool isInLine = false;
    /// Whether it is a note, which is at the bottom of its page.
    bool isNote = false;
    /// Whether the object is as high as its row, and the rows that it spans.
    bool fillsRow = false;
    int rows = 1;
    /// Whether its frame decides how high the row is, see InsideFrameAttribute.
    bool isInsideFrame = false;
    std::optional<ParagraphEdge> edge;
    /// Whether it is at the bottom of its row.
    bool isAtBottom = false;
    /// Whether it is a text whose lines may be on two pages.
    bool flows = false;
    /// Points below the text that belong to the object, or the height of one without text.
    double space = 0.0;
    /// Where the object itself ends below the top of its row, in points; 0 if its text decides.
    double least = 0.0;
    /// Of the room that the row leaves: the share above the text of a cell.
    double shareAbove = 0.0;
};

/// What to set on the items of a page.
struct PagePlan
{
    QList<ItemPlan> items;
    /// Where the first row begins, in points.
    double top = 0.0;
    /// Where the lines end, and the lowest place for the last few; 0 if the page has no end.
    double bottom = 0.0;
    double lowest = 0.0;
};

/// What the items need, of a document that has been rewritten.
[[nodiscard]] PagePlan planItems(Document& document);

} // namespace repair
