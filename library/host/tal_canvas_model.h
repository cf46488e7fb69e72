#pragma once

#include <QColor>
#include <QList>

class ClassFactory;
class Item;
class QGraphicsItem;

/// The canvas of one open label: what an importer fills.
///
/// A successful import calls importCanvasParameters() once, then the colours where
/// the format has them, then importItem() for every item, then completeCanvasLoading().
/// All calls come on the thread that called the importer. Lengths are in points
/// (1/72 inch).
class TalCanvasModel
{
public:
    virtual ~TalCanvasModel() = default;

    /// The factory for new items. Owned by the model, the same for its whole life.
    [[nodiscard]] virtual ClassFactory* getClassFactory() = 0;

    /// Adds an item to the canvas and takes its ownership. Properties of the item may
    /// still be set afterwards. Items stack in this order where their z values are equal.
    virtual void importItem(Item* item) = 0;

    /// Sets the page.
    ///
    /// @param width       page width in points
    /// @param height      page height in points
    /// @param canvasFlag  a flag that binary labels store; false from the other formats
    /// @param orientation the format's orientation flag: for OpenDocument true means
    ///                    portrait, for XML labels true means higher than wide, for
    ///                    binary labels true means that the stored code was 0 or 2. The
    ///                    width and height are those of the page as it is seen.
    virtual void importCanvasParameters(double width, double height, bool canvasFlag,
                                        bool orientation) = 0;

    /// Sets the colour of the label's material.
    virtual void setCanvasBackgroundColor(const QColor& color) = 0;
    /// Sets the colour that new items are drawn with: the colour of the print.
    virtual void setCanvasDefaultPenColor(const QColor& color) = 0;
    [[nodiscard]] virtual QColor canvasBackgroundColor() const = 0; ///< As set last.
    [[nodiscard]] virtual QColor canvasDefaultPenColor() const = 0; ///< As set last.

    /// Marks the listed items as not to be edited (or again as editable).
    virtual void setReadOnlyStateOnItemsInList(bool readOnly, QList<QGraphicsItem*> items) = 0;
    /// Marks the listed items as belonging to the user's background picture (or not).
    virtual void setUserBackgroundStateOnItemsInList(bool background,
                                                     QList<QGraphicsItem*> items) = 0;

    /// Ends a successful import. Not called when the import failed.
    virtual void completeCanvasLoading() = 0;
};
