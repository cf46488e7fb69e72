#pragma once

#include "host/kest_types.h"

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <Qt>

#include <optional>

namespace workbench {

// All persistent state of an item, as plain values. Items are read and restored only
// through these, so code that saves, lists or compares items needs no item class.
//
// Lengths are in points, angles in degrees clockwise. Style numbers are those of Qt's
// enumerations and are stored unchecked, as they were set; the look of a number that Qt
// does not know is decided by the painting code.

/// The box of an item, before rotation.
struct BoxValues
{
    QSizeF size{0.0, 0.0};
    double rotation = 0.0; ///< about the center of the box
    bool flipHorizontal = false;
    bool flipVertical = false;
    bool operator==(const BoxValues&) const = default;
};

/// An item's position on the canvas, and what the user may change.
struct PlacementValues
{
    QPointF position;
    double z = 0.0;
    bool movable = true;
    bool readOnly = false;
    bool userBackground = false;
    bool operator==(const PlacementValues&) const = default;
};

/// The outline of a shape, the stroke of a line, the frame of a text.
struct PenValues
{
    QColor color = Qt::black;
    double width = 1.0;        ///< points; 0: the thinnest line of the output
    int style = Qt::SolidLine; ///< Qt::PenStyle
    int cap = Qt::FlatCap;     ///< Qt::PenCapStyle
    int join = Qt::MiterJoin;  ///< Qt::PenJoinStyle
    bool operator==(const PenValues&) const = default;
};

/// The inside of a shape, the ground of a text.
struct FillValues
{
    QColor color = Qt::transparent;
    bool filled = true;
    int style = Qt::SolidPattern; ///< Qt::BrushStyle
    bool operator==(const FillValues&) const = default;
};

/// The corners of a rounded rectangle.
struct CornerValues
{
    /// If unset, a sixth of the shorter side.
    std::optional<double> radius;
    bool operator==(const CornerValues&) const = default;
};

/// The font of an item that shows characters.
struct FontValues
{
    QString family;
    int pointSize = 12;
    bool sized = false; ///< whether a size was ever set; a single-format text without one is scaled
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool operator==(const FontValues&) const = default;
};

/// Color and alignment of characters.
struct TextStyleValues
{
    QColor color = Qt::black;
    Qt::Alignment alignment;
    bool operator==(const TextStyleValues&) const = default;
};

/// The content of a text: plain text, or HTML if the text is a rich one.
struct TextValues
{
    QString text;
    QString html;
    bool operator==(const TextValues&) const = default;
};

/// What only a single-format text has.
struct TextLabelValues
{
    QSizeF textBox{0.0, 0.0};
    signed char limiting = 3; ///< fixed sides: 0 none, 1 width, 2 height, 3 both
    bool optionA = false;
    bool optionB = false;
    bool operator==(const TextLabelValues&) const = default;
};

/// A straight line from the item's position.
struct LineValues
{
    QPointF end; ///< relative to the item's position
    int startMarker = 0;
    int endMarker = 0;
    bool operator==(const LineValues&) const = default;
};

/// A barcode, with the names of BarcodeItem::importBarcodeProperties().
struct BarcodeValues
{
    int symbology = 20;
    QString content;
    bool flag3 = true;
    int textAlignment = Qt::AlignCenter;
    int moduleWidth = 0;
    bool flag1 = false;
    bool flag2 = false;
    int option = 0;
    int number = 0;
    int value = 0;
    QColor foreground = Qt::black;
    QColor background = Qt::transparent;
    bool operator==(const BarcodeValues&) const = default;
};

/// A picture and how it is mirrored.
struct PictureValues
{
    QImage image;
    bool operator==(const PictureValues&) const = default;
};

/// The drawing of a symbol, as SVG, and its colors.
struct SymbolValues
{
    QByteArray data;
    QColor foreground = Qt::black;
    QColor background = Qt::transparent;
    bool operator==(const SymbolValues&) const = default;
};

/// The binding of an item to a data source.
struct DatasourceValues
{
    int id = -1; ///< of the data-source controller; -1: not bound
    QStringList fields;
    bool operator==(const DatasourceValues&) const = default;
};

/// All values of one item; the groups that its class does not have are empty.
struct ItemValues
{
    KestTypes::ShapeType type = KestTypes::Rectangle;
    BoxValues box;
    PlacementValues placement;
    std::optional<PenValues> pen;
    std::optional<FillValues> fill;
    std::optional<CornerValues> corner;
    std::optional<FontValues> font;
    std::optional<TextStyleValues> textStyle;
    std::optional<TextValues> text;
    std::optional<TextLabelValues> textLabel;
    std::optional<LineValues> line;
    std::optional<BarcodeValues> barcode;
    std::optional<PictureValues> picture;
    std::optional<SymbolValues> symbol;
    std::optional<DatasourceValues> datasource;
    bool operator==(const ItemValues&) const = default;
};

} // namespace workbench
