#pragma once

#include "migration/model/census.h"
#include "workbench/items/item_values.h"

#include <QList>
#include <QRectF>
#include <QStringList>

#include <map>
#include <optional>

namespace workbench {
class Canvas;
class CanvasItem;
} // namespace workbench

namespace migration {

/// The properties of an item that matter for losses.
struct ItemFacts
{
    QString kind; ///< a code of workbench/items/shape_kinds.h
    ObjectClass objectClass = ObjectClass::Shape;
    /// False for an item that shows nothing, such as one whose picture is unreadable.
    bool hasContent = true;
    bool isBound = false; ///< to a data source
    int symbology = 0;    ///< of a barcode
    LossSet changes = {}; ///< visible on the item itself

    // Its appearance, in points on the page.
    QPolygonF outline = {};    ///< corners of its box; the two ends of a line
    int level = 0;             ///< in the stack, from the bottom
    QString text = {};         ///< as shown
    QStringList families = {}; ///< of the text, as named by the item
    bool isFormatted = false;  ///< a text with its own formats
    QColor textColor = {};     ///< invalid if there are several
    QColor textGround = {};    ///< behind all characters; invalid without one or with several
    QColor fill = {};          ///< invalid without a fill of one color
    bool isFilled = false;
    bool isOpaque = false; ///< hides what is below it
    std::optional<double> penWidth = {};
};

/// All items of a label.
struct LabelFacts
{
    QList<ItemFacts> items;
    std::map<LossKind, Tally> tallies; ///< names, and numbers of what concerns no item
    LossSet pageChanges;
    QSizeF pageSize;
    /// Texts of the document that no item of this page of a repaired document shows.
    QStringList missingTexts;
    /// Items of a page of a repaired document that have text on one side instead of both.
    qint64 textsOnOneSide = 0;
};

/// Counts a text of the document that the label does not show.
void noteMissingText(const QString& text, Tally& tally);

/// Finds changes on the items: outside the page, in another font, reduced in size, a barcode that
/// cannot be encoded.
///
/// @param blankTextsCount whether a text without a letter counts as an object
[[nodiscard]] LabelFacts lookAtItems(const workbench::Canvas& canvas, bool blankTextsCount);

/// Finds texts in another font than their item names, for formats whose items name the font of
/// the file.
void findReplacedFonts(LabelFacts& facts);

} // namespace migration
