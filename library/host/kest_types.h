#pragma once

#include <QtGlobal>

/// The host's type codes.
namespace KestTypes {

/// The kind of item that ClassFactory::create() creates.
///
/// The numbers are part of the contract. RichText follows SimpleText, and the polygons are
/// consecutive: importers compute codes from one another.
enum ShapeType : qint32 {
    Picture = 0x1000C,          ///< PixMapItem: a raster picture
    Symbol = 0x1000D,           ///< SymbolItem: a vector symbol
    SimpleText = 0x10015,       ///< SimpleTextItem: text in a single format
    RichText = 0x10016,         ///< RichTextItem: formatted text
    Barcode = 0x1001D,          ///< BarcodeItem
    Line = 0x1001F,             ///< LineItem
    Rectangle = 0x1002A,        ///< RectangleItem; also for unknown shapes
    RoundedRectangle = 0x1002B, ///< RoundedRectangleItem
    Ellipse = 0x1002C,          ///< EllipseItem
    Pie = 0x1002E,              ///< PieItem
    RightTriangle = 0x10033,    ///< PolygonItem
    Triangle = 0x10034,         ///< PolygonItem, isosceles
    Diamond = 0x10035,          ///< PolygonItem
    Pentagon = 0x10036,         ///< PolygonItem
    Hexagon = 0x10037,          ///< PolygonItem
    Octagon = 0x10038,          ///< PolygonItem
};

} // namespace KestTypes
