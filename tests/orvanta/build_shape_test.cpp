#include "tests/orvanta/reader_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using ShapeBuilding = ReaderFixture;

} // namespace

TEST_F(ShapeBuilding, AShapeIsMadeImportedAndSetUpInOrder)
{
    readControls("<transparent_shape><printable_control><transparency>false</transparency>"
                 "<fore_color>255</fore_color><back_color>65280</back_color>"
                 "<bounds><x>300</x><y>240</y><w>400</w><h>100</h></bounds></printable_control>"
                 "<shape_index>3</shape_index><line_width>2</line_width><sides>0</sides>"
                 "<rotation>10</rotation><flip_vertically>true</flip_vertically>"
                 "</transparent_shape>");
    EXPECT_EQ(takeCalls(), QStringList({
                               u"factory create 1002c"_s,
                               u"canvas importItem 'item:1'"_s,
                               u"item:1 setFillColor '#ff00ff00'"_s,
                               u"item:1 setPenColor '#ff0000ff'"_s,
                               u"item:1 setPenWidth 2"_s,
                               u"item:1 setItemSize 300 75"_s,
                               u"item:1 setFlipHorizontal false"_s,
                               u"item:1 setFlipVertical true"_s,
                               u"item:1 setItemRotation 10"_s,
                           }));
    EXPECT_EQ(host.item(1)->pos(), QPointF(75, 30));
}

TEST_F(ShapeBuilding, EachKindOfShapeHasItsItemAndItsTurn)
{
    const struct
    {
        const char* children;
        const char* created;
        const char* rotation;
    } rows[] = {
        {"", "create 1002a", "setItemRotation 0"},
        {"<shape_index>4</shape_index>", "create 10034", "setItemRotation 0"},
        {"<sides>3</sides>", "create 10034", "setItemRotation 0"},
        {"<sides>4</sides>", "create 10035", "setItemRotation 0"},
        {"<sides>5</sides>", "create 10036", "setItemRotation 0"},
        {"<sides>6</sides>", "create 10037", "setItemRotation 90"},
        {"<sides>6</sides><rotation>10</rotation>", "create 10037", "setItemRotation 100"},
        {"<sides>7</sides>", "create 1002c", "setItemRotation 0"},
        {"<sides>8</sides>", "create 10038", "setItemRotation 22.5"},
        {"<sides>8</sides><rotation>-90</rotation>", "create 10038", "setItemRotation -67.5"},
    };
    int number = 0;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.children);
        host.forgetCalls();
        readControls(QByteArray("<transparent_polygon>") + row.children + "</transparent_polygon>");
        const QByteArray name = "item:" + QByteArray::number(++number);
        EXPECT_EQ(callsOf("factory"), QStringList(QString::fromLatin1(row.created)));
        EXPECT_EQ(callsOf(name.constData()).last(), QString::fromLatin1(row.rotation));
    }
}

TEST_F(ShapeBuilding, OnlyAnOpaqueOddShapeIsFilled)
{
    const struct
    {
        const char* why;
        const char* properties;
        int index;
        const char* fill;
        const char* pen;
    } rows[] = {
        {"filled", "<transparency>false</transparency>", 3, "'#ffffffff'", "'#ff000000'"},
        {"outline", "<transparency>false</transparency>", 2, "'#00000000'", "'#ff000000'"},
        {"transparent", "", 3, "'#00000000'", "'#ff000000'"},
        {"negative and filled", "<transparency>false</transparency><negative>true</negative>", 3,
         "'#ff000000'", "'#ffffffff'"},
        {"negative outline", "<transparency>false</transparency><negative>true</negative>", 2,
         "'#00000000'", "'#ffffffff'"},
    };
    int number = 0;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.why);
        readControls(QByteArray("<transparent_shape><printable_control>") + row.properties +
                     "</printable_control><shape_index>" + QByteArray::number(row.index) +
                     "</shape_index></transparent_shape>");
        const QByteArray name = "item:" + QByteArray::number(++number);
        const QStringList calls = callsOf(name.constData());
        EXPECT_EQ(calls.at(0), u"setFillColor "_s + QString::fromLatin1(row.fill));
        EXPECT_EQ(calls.at(1), u"setPenColor "_s + QString::fromLatin1(row.pen));
    }
}

TEST_F(ShapeBuilding, TheLineWidthHas16Bits)
{
    const struct
    {
        const char* stored;
        const char* width;
    } rows[] = {
        {"0", "setPenWidth 0"},     {"65535", "setPenWidth 65535"}, {"65536", "setPenWidth 0"},
        {"65537", "setPenWidth 1"}, {"-1", "setPenWidth 65535"},    {"thick", "setPenWidth 0"},
        {"1.5", "setPenWidth 0"},
    };
    int number = 0;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.stored);
        readControls(QByteArray("<transparent_shape><line_width>") + row.stored +
                     "</line_width></transparent_shape>");
        const QByteArray name = "item:" + QByteArray::number(++number);
        EXPECT_EQ(callsOf(name.constData()).at(2), QString::fromLatin1(row.width));
    }
}

TEST_F(ShapeBuilding, AShapeThatTheHostDoesNotMakeIsLeftOut)
{
    host.behavior().refusedTypes = {KestTypes::Ellipse};
    host.behavior().mismatchedTypes = {KestTypes::Rectangle};
    readControls("<transparent_shape/><transparent_shape><sides>7</sides></transparent_shape>"
                 "<transparent_shape><sides>3</sides></transparent_shape>");
    EXPECT_EQ(host.itemCount(), 1);
    EXPECT_EQ(host.livingItems(), 1);
    EXPECT_EQ(logText(), u"Left out of the label: a shape, for which the host made no item\n"
                         "Left out of the label: a shape, for which the host made no item"_s);
}
