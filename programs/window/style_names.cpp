#include "window/style_names.h"

#include "window/item_description.h"

#include <QCoreApplication>
#include <QLocale>

namespace desktop {

namespace {

struct NameRow
{
    int code;
    const char* name;
};

constexpr const char* kContext = "desktop::StyleNames";

constexpr NameRow kKinds[] = {
    {KestTypes::Picture, QT_TRANSLATE_NOOP("desktop::StyleNames", "Picture")},
    {KestTypes::Symbol, QT_TRANSLATE_NOOP("desktop::StyleNames", "Symbol")},
    {KestTypes::SimpleText, QT_TRANSLATE_NOOP("desktop::StyleNames", "Text")},
    {KestTypes::RichText, QT_TRANSLATE_NOOP("desktop::StyleNames", "Formatted text")},
    {KestTypes::Barcode, QT_TRANSLATE_NOOP("desktop::StyleNames", "Barcode")},
    {KestTypes::Line, QT_TRANSLATE_NOOP("desktop::StyleNames", "Line")},
    {KestTypes::Rectangle, QT_TRANSLATE_NOOP("desktop::StyleNames", "Rectangle")},
    {KestTypes::RoundedRectangle, QT_TRANSLATE_NOOP("desktop::StyleNames", "Rounded rectangle")},
    {KestTypes::Ellipse, QT_TRANSLATE_NOOP("desktop::StyleNames", "Ellipse")},
    {KestTypes::Pie, QT_TRANSLATE_NOOP("desktop::StyleNames", "Pie")},
    {KestTypes::RightTriangle, QT_TRANSLATE_NOOP("desktop::StyleNames", "Right triangle")},
    {KestTypes::Triangle, QT_TRANSLATE_NOOP("desktop::StyleNames", "Triangle")},
    {KestTypes::Diamond, QT_TRANSLATE_NOOP("desktop::StyleNames", "Diamond")},
    {KestTypes::Pentagon, QT_TRANSLATE_NOOP("desktop::StyleNames", "Pentagon")},
    {KestTypes::Hexagon, QT_TRANSLATE_NOOP("desktop::StyleNames", "Hexagon")},
    {KestTypes::Octagon, QT_TRANSLATE_NOOP("desktop::StyleNames", "Octagon")},
};

constexpr NameRow kPenStyles[] = {
    {Qt::NoPen, QT_TRANSLATE_NOOP("desktop::StyleNames", "none")},
    {Qt::SolidLine, QT_TRANSLATE_NOOP("desktop::StyleNames", "solid")},
    {Qt::DashLine, QT_TRANSLATE_NOOP("desktop::StyleNames", "dashes")},
    {Qt::DotLine, QT_TRANSLATE_NOOP("desktop::StyleNames", "dots")},
    {Qt::DashDotLine, QT_TRANSLATE_NOOP("desktop::StyleNames", "dash, dot")},
    {Qt::DashDotDotLine, QT_TRANSLATE_NOOP("desktop::StyleNames", "dash, dot, dot")},
};

constexpr NameRow kCaps[] = {
    {Qt::FlatCap, QT_TRANSLATE_NOOP("desktop::StyleNames", "flat")},
    {Qt::SquareCap, QT_TRANSLATE_NOOP("desktop::StyleNames", "square")},
    {Qt::RoundCap, QT_TRANSLATE_NOOP("desktop::StyleNames", "round")},
};

constexpr NameRow kJoins[] = {
    {Qt::MiterJoin, QT_TRANSLATE_NOOP("desktop::StyleNames", "pointed")},
    {Qt::BevelJoin, QT_TRANSLATE_NOOP("desktop::StyleNames", "cut off")},
    {Qt::RoundJoin, QT_TRANSLATE_NOOP("desktop::StyleNames", "rounded")},
};

constexpr NameRow kBrushes[] = {
    {Qt::NoBrush, QT_TRANSLATE_NOOP("desktop::StyleNames", "none")},
    {Qt::SolidPattern, QT_TRANSLATE_NOOP("desktop::StyleNames", "solid")},
    {Qt::Dense1Pattern, QT_TRANSLATE_NOOP("desktop::StyleNames", "screen, densest")},
    {Qt::Dense2Pattern, QT_TRANSLATE_NOOP("desktop::StyleNames", "screen, very dense")},
    {Qt::Dense3Pattern, QT_TRANSLATE_NOOP("desktop::StyleNames", "screen, dense")},
    {Qt::Dense4Pattern, QT_TRANSLATE_NOOP("desktop::StyleNames", "screen, half")},
    {Qt::Dense5Pattern, QT_TRANSLATE_NOOP("desktop::StyleNames", "screen, light")},
    {Qt::Dense6Pattern, QT_TRANSLATE_NOOP("desktop::StyleNames", "screen, very light")},
    {Qt::Dense7Pattern, QT_TRANSLATE_NOOP("desktop::StyleNames", "screen, lightest")},
    {Qt::HorPattern, QT_TRANSLATE_NOOP("desktop::StyleNames", "horizontal lines")},
    {Qt::VerPattern, QT_TRANSLATE_NOOP("desktop::StyleNames", "vertical lines")},
    {Qt::CrossPattern, QT_TRANSLATE_NOOP("desktop::StyleNames", "grid")},
    {Qt::BDiagPattern, QT_TRANSLATE_NOOP("desktop::StyleNames", "rising lines")},
    {Qt::FDiagPattern, QT_TRANSLATE_NOOP("desktop::StyleNames", "falling lines")},
    {Qt::DiagCrossPattern, QT_TRANSLATE_NOOP("desktop::StyleNames", "diagonal grid")},
    {Qt::LinearGradientPattern, QT_TRANSLATE_NOOP("desktop::StyleNames", "gradient")},
};

// The same marks for both ends: the start keeps them in the upper half of a byte.
constexpr NameRow kMarkers[] = {
    {0x00, QT_TRANSLATE_NOOP("desktop::StyleNames", "none")},
    {0x01, QT_TRANSLATE_NOOP("desktop::StyleNames", "arrow")},
    {0x03, QT_TRANSLATE_NOOP("desktop::StyleNames", "small arrow")},
    {0x05, QT_TRANSLATE_NOOP("desktop::StyleNames", "double arrow")},
    {0x08, QT_TRANSLATE_NOOP("desktop::StyleNames", "dimension stroke")},
    {0x10, QT_TRANSLATE_NOOP("desktop::StyleNames", "arrow")},
    {0x30, QT_TRANSLATE_NOOP("desktop::StyleNames", "small arrow")},
    {0x50, QT_TRANSLATE_NOOP("desktop::StyleNames", "double arrow")},
    {0x80, QT_TRANSLATE_NOOP("desktop::StyleNames", "dimension stroke")},
};

constexpr NameRow kFixedSides[] = {
    {0, QT_TRANSLATE_NOOP("desktop::StyleNames", "none")},
    {1, QT_TRANSLATE_NOOP("desktop::StyleNames", "width")},
    {2, QT_TRANSLATE_NOOP("desktop::StyleNames", "height")},
    {3, QT_TRANSLATE_NOOP("desktop::StyleNames", "width and height")},
};

constexpr NameRow kHorizontal[] = {
    {Qt::AlignLeft, QT_TRANSLATE_NOOP("desktop::StyleNames", "left")},
    {Qt::AlignRight, QT_TRANSLATE_NOOP("desktop::StyleNames", "right")},
    {Qt::AlignHCenter, QT_TRANSLATE_NOOP("desktop::StyleNames", "centered")},
    {Qt::AlignJustify, QT_TRANSLATE_NOOP("desktop::StyleNames", "justified")},
};

constexpr NameRow kVertical[] = {
    {Qt::AlignTop, QT_TRANSLATE_NOOP("desktop::StyleNames", "top")},
    {Qt::AlignBottom, QT_TRANSLATE_NOOP("desktop::StyleNames", "bottom")},
    {Qt::AlignVCenter, QT_TRANSLATE_NOOP("desktop::StyleNames", "middle")},
};

QString translated(const char* text)
{
    return QCoreApplication::translate(kContext, text);
}

template <std::size_t Size>
const char* find(const NameRow (&rows)[Size], int code)
{
    for (const NameRow& row : rows) {
        if (row.code == code) {
            return row.name;
        }
    }
    return nullptr;
}

template <std::size_t Size>
QString nameIn(const NameRow (&rows)[Size], int code)
{
    const char* name = find(rows, code);
    return name != nullptr ? translated(name)
                           : QCoreApplication::translate(kContext, "unknown (%1)").arg(code);
}

// The first flag of the table that is set.
template <std::size_t Size>
QString flagName(const NameRow (&rows)[Size], int flags)
{
    for (const NameRow& row : rows) {
        if ((flags & row.code) != 0) {
            return translated(row.name);
        }
    }
    return translated(rows[0].name);
}

} // namespace

QString kindName(KestTypes::ShapeType type)
{
    return nameIn(kKinds, type);
}

QString colorName(const QColor& color)
{
    if (!color.isValid()) {
        return QCoreApplication::translate(kContext, "none");
    }
    if (color.alpha() == 0) {
        return QCoreApplication::translate(kContext, "transparent");
    }
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

QString angleText(double degrees)
{
    return QLocale().toString(degrees, 'g', 6) + QChar(0xb0);
}

QString penStyleName(int style)
{
    return nameIn(kPenStyles, style);
}

QString capStyleName(int style)
{
    return nameIn(kCaps, style);
}

QString joinStyleName(int style)
{
    return nameIn(kJoins, style);
}

QString brushStyleName(int style)
{
    return nameIn(kBrushes, style);
}

QString lineMarkerName(int marker)
{
    return nameIn(kMarkers, marker);
}

QString alignmentName(Qt::Alignment alignment)
{
    const int flags = static_cast<int>(alignment);
    return flagName(kHorizontal, flags) + QStringLiteral(", ") + flagName(kVertical, flags);
}

QString fixedSidesName(int limiting)
{
    return nameIn(kFixedSides, limiting);
}

} // namespace desktop
