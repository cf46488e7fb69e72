#include "migration/kind_names.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace migration {

namespace {

struct Row
{
    KestTypes::ShapeType type;
    const char* name;
    const char* words;
};

#define WORDS(text) QT_TRANSLATE_NOOP("migration::KindNames", text)
constexpr std::array Rows{
    Row{KestTypes::Picture, "picture", WORDS("picture")},
    Row{KestTypes::Symbol, "symbol", WORDS("symbol")},
    Row{KestTypes::SimpleText, "text", WORDS("text")},
    Row{KestTypes::RichText, "rich-text", WORDS("formatted text")},
    Row{KestTypes::Barcode, "barcode", WORDS("barcode")},
    Row{KestTypes::Line, "line", WORDS("line")},
    Row{KestTypes::Rectangle, "rectangle", WORDS("rectangle")},
    Row{KestTypes::RoundedRectangle, "rounded-rectangle", WORDS("rounded rectangle")},
    Row{KestTypes::Ellipse, "ellipse", WORDS("ellipse")},
    Row{KestTypes::Pie, "pie", WORDS("pie")},
    Row{KestTypes::RightTriangle, "right-triangle", WORDS("right triangle")},
    Row{KestTypes::Triangle, "triangle", WORDS("triangle")},
    Row{KestTypes::Diamond, "diamond", WORDS("diamond")},
    Row{KestTypes::Pentagon, "pentagon", WORDS("pentagon")},
    Row{KestTypes::Hexagon, "hexagon", WORDS("hexagon")},
    Row{KestTypes::Octagon, "octagon", WORDS("octagon")},
};
#undef WORDS

} // namespace

QString kindName(KestTypes::ShapeType type)
{
    const auto* found =
        std::find_if(Rows.begin(), Rows.end(), [type](const Row& row) { return row.type == type; });
    return found != Rows.end() ? QString::fromLatin1(found->name) : QStringLiteral("item");
}

QString kindWords(const QString& name)
{
    const auto* found = std::find_if(Rows.begin(), Rows.end(), [&name](const Row& row) {
        return name == QLatin1String(row.name);
    });
    return found != Rows.end() ? QCoreApplication::translate("migration::KindNames", found->words)
                               : name;
}

} // namespace migration
