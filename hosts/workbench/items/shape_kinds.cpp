#include "workbench/items/shape_kinds.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace workbench {

namespace {

struct Row
{
    KestTypes::ShapeType type;
    const char* savedName;
    const char* code;
    const char* title;
};

#define TITLE(text) QT_TRANSLATE_NOOP("workbench::ShapeKinds", text)
constexpr std::array Rows{
    Row{KestTypes::Picture, "picture", "picture", TITLE("Picture")},
    Row{KestTypes::Symbol, "symbol", "symbol", TITLE("Symbol")},
    Row{KestTypes::SimpleText, "simpleText", "text", TITLE("Text")},
    Row{KestTypes::RichText, "richText", "rich-text", TITLE("Formatted text")},
    Row{KestTypes::Barcode, "barcode", "barcode", TITLE("Barcode")},
    Row{KestTypes::Line, "line", "line", TITLE("Line")},
    Row{KestTypes::Rectangle, "rectangle", "rectangle", TITLE("Rectangle")},
    Row{KestTypes::RoundedRectangle, "roundedRectangle", "rounded-rectangle",
        TITLE("Rounded rectangle")},
    Row{KestTypes::Ellipse, "ellipse", "ellipse", TITLE("Ellipse")},
    Row{KestTypes::Pie, "pie", "pie", TITLE("Pie")},
    Row{KestTypes::RightTriangle, "rightTriangle", "right-triangle", TITLE("Right triangle")},
    Row{KestTypes::Triangle, "triangle", "triangle", TITLE("Triangle")},
    Row{KestTypes::Diamond, "diamond", "diamond", TITLE("Diamond")},
    Row{KestTypes::Pentagon, "pentagon", "pentagon", TITLE("Pentagon")},
    Row{KestTypes::Hexagon, "hexagon", "hexagon", TITLE("Hexagon")},
    Row{KestTypes::Octagon, "octagon", "octagon", TITLE("Octagon")},
};
#undef TITLE

const Row* rowOf(KestTypes::ShapeType type)
{
    const auto* row = std::find_if(Rows.begin(), Rows.end(),
                                   [type](const Row& each) { return each.type == type; });
    return row != Rows.end() ? row : nullptr;
}

const Row* rowOf(const QString& name, const char* Row::*column)
{
    const auto* row = std::find_if(Rows.begin(), Rows.end(), [&name, column](const Row& each) {
        return name == QLatin1String(each.*column);
    });
    return row != Rows.end() ? row : nullptr;
}

QString titleOf(const Row* row)
{
    return row != nullptr ? QCoreApplication::translate("workbench::ShapeKinds", row->title)
                          : QString();
}

} // namespace

QString savedNameOf(KestTypes::ShapeType type)
{
    const Row* row = rowOf(type);
    return row != nullptr ? QString::fromLatin1(row->savedName) : QString();
}

std::optional<KestTypes::ShapeType> typeOfSavedName(const QString& name)
{
    const Row* row = rowOf(name, &Row::savedName);
    return row != nullptr ? std::optional(row->type) : std::nullopt;
}

QString shapeCode(KestTypes::ShapeType type)
{
    const Row* row = rowOf(type);
    return QString::fromLatin1(row != nullptr ? row->code : "item");
}

QString shapeTitle(KestTypes::ShapeType type)
{
    return titleOf(rowOf(type));
}

QString shapeTitle(const QString& code)
{
    const Row* row = rowOf(code, &Row::code);
    return row != nullptr ? titleOf(row) : code;
}

} // namespace workbench
