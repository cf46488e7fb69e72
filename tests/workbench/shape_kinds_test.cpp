#include "workbench/items/shape_kinds.h"

#include <gtest/gtest.h>

#include <QSet>

using namespace Qt::StringLiterals;
using namespace workbench;

namespace {

constexpr KestTypes::ShapeType AllTypes[] = {
    KestTypes::Picture, KestTypes::Symbol,   KestTypes::SimpleText,    KestTypes::RichText,
    KestTypes::Barcode, KestTypes::Line,     KestTypes::Rectangle,     KestTypes::RoundedRectangle,
    KestTypes::Ellipse, KestTypes::Pie,      KestTypes::RightTriangle, KestTypes::Triangle,
    KestTypes::Diamond, KestTypes::Pentagon, KestTypes::Hexagon,       KestTypes::Octagon,
};
constexpr auto UnknownType = static_cast<KestTypes::ShapeType>(1);

} // namespace

TEST(ShapeKinds, HaveDifferentNamesCodesAndTitles)
{
    QSet<QString> names;
    QSet<QString> codes;
    QSet<QString> titles;
    for (const KestTypes::ShapeType type : AllTypes) {
        names.insert(savedNameOf(type));
        codes.insert(shapeCode(type));
        titles.insert(shapeTitle(type));
        EXPECT_EQ(typeOfSavedName(savedNameOf(type)), type);
        EXPECT_EQ(shapeTitle(shapeCode(type)), shapeTitle(type));
    }
    EXPECT_EQ(names.size(), std::ssize(AllTypes));
    EXPECT_EQ(codes.size(), std::ssize(AllTypes));
    EXPECT_EQ(titles.size(), std::ssize(AllTypes));
    EXPECT_FALSE(names.contains(QString()));
}

TEST(ShapeKinds, OfUnknownItems)
{
    EXPECT_EQ(savedNameOf(UnknownType), QString());
    EXPECT_EQ(typeOfSavedName(u"teapot"_s), std::nullopt);
    EXPECT_EQ(shapeCode(UnknownType), u"item"_s);
    EXPECT_EQ(shapeTitle(u"teapot"_s), u"teapot"_s);
}
