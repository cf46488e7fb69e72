#include "window/properties/style_names.h"

#include "window/properties/item_description.h"
#include "workbench/items/shape_kinds.h"

#include <QCoreApplication>
#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

struct NameRow
{
    int code;
    const char* name;
};

constexpr const char* Context = "window::StyleNames";

constexpr NameRow PenStyles[] = {
    {Qt::NoPen, QT_TRANSLATE_NOOP("window::StyleNames", "none")},
    {Qt::SolidLine, QT_TRANSLATE_NOOP("window::StyleNames", "solid")},
    {Qt::DashLine, QT_TRANSLATE_NOOP("window::StyleNames", "dashes")},
    {Qt::DotLine, QT_TRANSLATE_NOOP("window::StyleNames", "dots")},
    {Qt::DashDotLine, QT_TRANSLATE_NOOP("window::StyleNames", "dash, dot")},
    {Qt::DashDotDotLine, QT_TRANSLATE_NOOP("window::StyleNames", "dash, dot, dot")},
};

constexpr NameRow Caps[] = {
    {Qt::FlatCap, QT_TRANSLATE_NOOP("window::StyleNames", "flat")},
    {Qt::SquareCap, QT_TRANSLATE_NOOP("window::StyleNames", "square")},
    {Qt::RoundCap, QT_TRANSLATE_NOOP("window::StyleNames", "round")},
};

constexpr NameRow Joins[] = {
    {Qt::MiterJoin, QT_TRANSLATE_NOOP("window::StyleNames", "pointed")},
    {Qt::BevelJoin, QT_TRANSLATE_NOOP("window::StyleNames", "cut off")},
    {Qt::RoundJoin, QT_TRANSLATE_NOOP("window::StyleNames", "rounded")},
};

constexpr NameRow Brushes[] = {
    {Qt::NoBrush, QT_TRANSLATE_NOOP("window::StyleNames", "none")},
    {Qt::SolidPattern, QT_TRANSLATE_NOOP("window::StyleNames", "solid")},
    {Qt::Dense1Pattern, QT_TRANSLATE_NOOP("window::StyleNames", "screen, densest")},
    {Qt::Dense2Pattern, QT_TRANSLATE_NOOP("window::StyleNames", "screen, very dense")},
    {Qt::Dense3Pattern, QT_TRANSLATE_NOOP("window::StyleNames", "screen, dense")},
    {Qt::Dense4Pattern, QT_TRANSLATE_NOOP("window::StyleNames", "screen, half")},
    {Qt::Dense5Pattern, QT_TRANSLATE_NOOP("window::StyleNames", "screen, light")},
    {Qt::Dense6Pattern, QT_TRANSLATE_NOOP("window::StyleNames", "screen, very light")},
    {Qt::Dense7Pattern, QT_TRANSLATE_NOOP("window::StyleNames", "screen, lightest")},
    {Qt::HorPattern, QT_TRANSLATE_NOOP("window::StyleNames", "horizontal lines")},
    {Qt::VerPattern, QT_TRANSLATE_NOOP("window::StyleNames", "vertical lines")},
    {Qt::CrossPattern, QT_TRANSLATE_NOOP("window::StyleNames", "grid")},
    {Qt::BDiagPattern, QT_TRANSLATE_NOOP("window::StyleNames", "rising lines")},
    {Qt::FDiagPattern, QT_TRANSLATE_NOOP("window::StyleNames", "falling lines")},
    {Qt::DiagCrossPattern, QT_TRANSLATE_NOOP("window::StyleNames", "diagonal grid")},
    {Qt::LinearGradientPattern, QT_TRANSLATE_NOOP("window::StyleNames", "gradient")},
};

// The same markers for both ends: the start has them in the upper half of the byte.
constexpr NameRow Markers[] = {
    {0x00, QT_TRANSLATE_NOOP("window::StyleNames", "none")},
    {0x01, QT_TRANSLATE_NOOP("window::StyleNames", "arrow")},
    {0x03, QT_TRANSLATE_NOOP("window::StyleNames", "small arrow")},
    {0x05, QT_TRANSLATE_NOOP("window::StyleNames", "double arrow")},
    {0x08, QT_TRANSLATE_NOOP("window::StyleNames", "dimension stroke")},
    {0x10, QT_TRANSLATE_NOOP("window::StyleNames", "arrow")},
    {0x30, QT_TRANSLATE_NOOP("window::StyleNames", "small arrow")},
    {0x50, QT_TRANSLATE_NOOP("window::StyleNames", "double arrow")},
    {0x80, QT_TRANSLATE_NOOP("window::StyleNames", "dimension stroke")},
};

constexpr NameRow FixedSides[] = {
    {0, QT_TRANSLATE_NOOP("window::StyleNames", "none")},
    {1, QT_TRANSLATE_NOOP("window::StyleNames", "width")},
    {2, QT_TRANSLATE_NOOP("window::StyleNames", "height")},
    {3, QT_TRANSLATE_NOOP("window::StyleNames", "width and height")},
};

constexpr NameRow HorizontalSteps[] = {
    {Qt::AlignLeft, QT_TRANSLATE_NOOP("window::StyleNames", "left")},
    {Qt::AlignRight, QT_TRANSLATE_NOOP("window::StyleNames", "right")},
    {Qt::AlignHCenter, QT_TRANSLATE_NOOP("window::StyleNames", "centered")},
    {Qt::AlignJustify, QT_TRANSLATE_NOOP("window::StyleNames", "justified")},
};

constexpr NameRow VerticalSteps[] = {
    {Qt::AlignTop, QT_TRANSLATE_NOOP("window::StyleNames", "top")},
    {Qt::AlignBottom, QT_TRANSLATE_NOOP("window::StyleNames", "bottom")},
    {Qt::AlignVCenter, QT_TRANSLATE_NOOP("window::StyleNames", "middle")},
};

QString translated(const char* text)
{
    return QCoreApplication::translate(Context, text);
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
                           : QCoreApplication::translate(Context, "unknown (%1)").arg(code);
}

template <std::size_t Size>
QList<NamedCode> choicesOf(const NameRow (&rows)[Size])
{
    QList<NamedCode> choices;
    for (const NameRow& row : rows) {
        choices.append({row.code, translated(row.name)});
    }
    return choices;
}

// The markers whose code has no bits but these.
QList<NamedCode> markersWithin(int bits)
{
    QList<NamedCode> choices = choicesOf(Markers);
    choices.removeIf([bits](const NamedCode& choice) { return (choice.code & ~bits) != 0; });
    return choices;
}

// The first matching flag of the table, else its first flag.
template <std::size_t Size>
int firstFlag(const NameRow (&rows)[Size], int flags)
{
    for (const NameRow& row : rows) {
        if ((flags & row.code) != 0) {
            return row.code;
        }
    }
    return rows[0].code;
}

template <std::size_t Size>
QString flagName(const NameRow (&rows)[Size], int flags)
{
    return translated(find(rows, firstFlag(rows, flags)));
}

} // namespace

QString kindName(KestTypes::ShapeType type)
{
    const QString title = workbench::shapeTitle(type);
    return title.isEmpty() ? QCoreApplication::translate(Context, "unknown (%1)").arg(int(type))
                           : title;
}

QString colorName(const QColor& color)
{
    if (!color.isValid()) {
        return QCoreApplication::translate(Context, "none");
    }
    if (color.alpha() == 0) {
        return QCoreApplication::translate(Context, "transparent");
    }
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

QString angleText(double degrees)
{
    return QLocale().toString(degrees, 'g', 6) + QChar(0xb0);
}

QString penStyleName(int style)
{
    return nameIn(PenStyles, style);
}

QString capStyleName(int style)
{
    return nameIn(Caps, style);
}

QString joinStyleName(int style)
{
    return nameIn(Joins, style);
}

QString brushStyleName(int style)
{
    return nameIn(Brushes, style);
}

QString lineMarkerName(int marker)
{
    return nameIn(Markers, marker);
}

QString alignmentName(Qt::Alignment alignment)
{
    const int flags = static_cast<int>(alignment);
    return flagName(HorizontalSteps, flags) + u", "_s + flagName(VerticalSteps, flags);
}

QString fixedSidesName(int limiting)
{
    return nameIn(FixedSides, limiting);
}

QList<NamedCode> penStyleChoices()
{
    return choicesOf(PenStyles);
}

QList<NamedCode> capStyleChoices()
{
    return choicesOf(Caps);
}

QList<NamedCode> joinStyleChoices()
{
    return choicesOf(Joins);
}

QList<NamedCode> brushStyleChoices()
{
    return choicesOf(Brushes);
}

QList<NamedCode> startMarkerChoices()
{
    return markersWithin(0xF0);
}

QList<NamedCode> endMarkerChoices()
{
    return markersWithin(0x0F);
}

QList<NamedCode> fixedSidesChoices()
{
    return choicesOf(FixedSides);
}

int alignmentCode(Qt::Alignment alignment)
{
    const int flags = static_cast<int>(alignment);
    return firstFlag(HorizontalSteps, flags) | firstFlag(VerticalSteps, flags);
}

QList<NamedCode> alignmentChoices()
{
    QList<NamedCode> choices;
    for (const NameRow& down : VerticalSteps) {
        for (const NameRow& across : HorizontalSteps) {
            const int code = across.code | down.code;
            choices.append({code, alignmentName(Qt::Alignment(code))});
        }
    }
    return choices;
}

} // namespace window
