#include "tests/support/silent_host/silent_host.h"

#include "tests/support/silent_host/silent_items.h"

namespace silent {

SymbolConversion symbolConversion = SymbolConversion::Works;

Item* Factory::create(KestTypes::ShapeType type)
{
    switch (type) {
    case KestTypes::Picture:
        return new Picture;
    case KestTypes::Symbol:
        return new Symbol;
    case KestTypes::SimpleText:
        return new SimpleText;
    case KestTypes::RichText:
        return new RichText;
    case KestTypes::Barcode:
        return new Barcode;
    case KestTypes::Line:
        return new Line;
    case KestTypes::Rectangle:
        return new Rectangle;
    case KestTypes::RoundedRectangle:
        return new RoundedRectangle;
    case KestTypes::Ellipse:
        return new Ellipse;
    case KestTypes::Pie:
        return new Pie;
    case KestTypes::RightTriangle:
    case KestTypes::Triangle:
    case KestTypes::Diamond:
    case KestTypes::Pentagon:
    case KestTypes::Hexagon:
    case KestTypes::Octagon:
        return new Polygon;
    }
    return nullptr;
}

} // namespace silent
