#pragma once

#include <QColor>
#include <QList>

class ClassFactory;
class Item;
class QGraphicsItem;

/// The canvas of an open label, filled by an importer.
///
/// A successful import calls importCanvasParameters() once, then sets the colors if the format has
/// them, then calls importItem() for each item and completeCanvasLoading() at the end. All calls
/// are made in the thread that called the importer. Lengths are in points (1/72 inch).
class TalCanvasModel
{
public:
    virtual ~TalCanvasModel() = default;

    /// The factory for new items. Owned by the model and always the same.
    [[nodiscard]] virtual ClassFactory* getClassFactory() = 0;

    /// Adds an item to the canvas and takes ownership of it. Properties of the item may still be
    /// set afterwards. Items with equal z values are stacked in this order.
    virtual void importItem(Item* item) = 0;

    /// Sets the page.
    ///
    /// @param width       page width in points
    /// @param height      page height in points
    /// @param canvasFlag  a stored flag of binary labels, of unknown meaning; false for the other
    ///                    formats
    /// @param orientation the format's orientation flag: true means portrait for OpenDocument,
    ///                    higher than wide for XML labels, and a stored code of 0 or 2 for
    ///                    binary labels. Width and height are always those of the page as
    ///                    displayed.
    virtual void importCanvasParameters(double width, double height, bool canvasFlag,
                                        bool orientation) = 0;

    /// Sets the color of the label's material.
    virtual void setCanvasBackgroundColor(const QColor& color) = 0;
    /// Sets the color that new items are drawn with: that of the print.
    virtual void setCanvasDefaultPenColor(const QColor& color) = 0;
    [[nodiscard]] virtual QColor canvasBackgroundColor() const = 0; ///< As last set.
    [[nodiscard]] virtual QColor canvasDefaultPenColor() const = 0; ///< As last set.

    /// Marks the items as read-only (or as editable).
    virtual void setReadOnlyStateOnItemsInList(bool readOnly, QList<QGraphicsItem*> items) = 0;
    /// Marks the items as part of the user's background picture (or not).
    virtual void setUserBackgroundStateOnItemsInList(bool background,
                                                     QList<QGraphicsItem*> items) = 0;

    /// Ends a successful import. Not called if the import failed.
    virtual void completeCanvasLoading() = 0;
};
