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
    EXPECT_EQ(buildSymbol(host(), header, Printer, "40x30"), BuildResult::Built);
    EXPECT_EQ(fake.calls.lines(),
              lines({"factory create \"1000d\"", "item1 loadItemFromData \"40x30\"",
                     "item1 getItemSize", "item1 setItemSize 80x15", "item1 setItemRotation 30",
                     "item1 setZValue 1003", "item1 setFlag movable yes", "item1 setPos 100x50",
                     "item1 setForegroundColor #ffff0000", "item1 setBackgroundColor #ffffff00",
                     "canvas importItem"}));
    expectPlaced();
}

TEST_F(SymbolBuilder, SymbolThatDrawsNothingIsDropped)
{
    for (const char* data : {"0x30", "40x0", "-1x30", "nonsense"}) {
        EXPECT_EQ(buildSymbol(host(), header, Printer, data), BuildResult::NoSize) << data;
        EXPECT_EQ(fake.calls.itemsAlive, 0) << data;
    }
    EXPECT_TRUE(fake.calls.with("importItem").isEmpty());
    EXPECT_TRUE(fake.calls.with("setItemSize").isEmpty());
}

TEST_F(SymbolBuilder, HostWithoutSymbolsLeavesItOut)
{
    fake.canvas.factory.refusedTypes = {KestTypes::Symbol};
    EXPECT_EQ(buildSymbol(host(), header, Printer, "40x30"), BuildResult::NoItem);
}

} // namespace
