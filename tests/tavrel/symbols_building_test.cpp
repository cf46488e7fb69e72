// The calls of the symbol builder to a host.

#include "tavrel/symbols.h"

#include "tests/tavrel/builder_fixture.h"

using namespace tavrel;
using namespace tavrel_test;

namespace {

using SymbolBuilder = Builders;

TEST_F(SymbolBuilder, ScalesTheSymbolsOwnSizeAndColorsIt)
{
    header.width = 600.0;
    header.height = 75.0;
    host.behavior().symbolSize = QSizeF(40, 30);
    const QByteArray loaded = "item:1 loadItemFromData " + TestHost::shown("data").toUtf8();
    EXPECT_EQ(buildSymbol(canvas(), header, Printer, "data"), BuildResult::Built);
    EXPECT_EQ(
        host.calls(),
        lines({"factory create 1000d", loaded.constData(), "item:1 getItemSize",
               "item:1 setItemSize 80 15", "item:1 setItemRotation 30", "item:1 setZValue 1003",
               "item:1 setMovable true", "item:1 setPos 100 50", "canvas canvasDefaultPenColor",
               "item:1 setForegroundColor '#ffff0000'", "canvas canvasBackgroundColor",
               "item:1 setBackgroundColor '#ffffff00'", "canvas importItem 'item:1'"}));
    expectPlaced();
}

TEST_F(SymbolBuilder, SymbolThatDrawsNothingIsDropped)
{
    for (const QSizeF& size : {QSizeF(0, 30), QSizeF(40, 0), QSizeF(-1, 30), QSizeF(0, 0)}) {
        host.behavior().symbolSize = size;
        EXPECT_EQ(buildSymbol(canvas(), header, Printer, "data"), BuildResult::NoSize);
        EXPECT_EQ(host.livingItems(), 0);
    }
    EXPECT_TRUE(host.callsWith("importItem").isEmpty());
    EXPECT_TRUE(host.callsWith("setItemSize").isEmpty());
}

TEST_F(SymbolBuilder, HostWithoutSymbolsLeavesItOut)
{
    host.behavior().refusedTypes = {KestTypes::Symbol};
    EXPECT_EQ(buildSymbol(canvas(), header, Printer, "data"), BuildResult::NoItem);
}

} // namespace
