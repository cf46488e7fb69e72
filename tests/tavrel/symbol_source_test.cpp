#include "tavrel/symbols.h"
#include "tests/tavrel/fake_services.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

using tavrel::SymbolSource;
using tavrel_test::FakeServices;

namespace {

const QString First = QStringLiteral("symbols.db");
const QString Second = QStringLiteral("legacy_symbols.db");

class Symbols : public testing::Test
{
protected:
    FakeServices& services = FakeServices::reset();
};

TEST_F(Symbols, FirstDatabaseIsEnoughWhenItKnowsTheName)
{
    services.databases[First][QStringLiteral("arrow.svg")] = "1x1";
    services.databases[Second][QStringLiteral("arrow.svg")] = "2x2";
    SymbolSource source;
    EXPECT_EQ(source.getSymbolData(QStringLiteral("arrow.svg")), QByteArray("1x1"));
    EXPECT_EQ(services.databasePaths,
              QStringList(QCoreApplication::applicationDirPath() + QStringLiteral("/symbols.db")));
}

TEST_F(Symbols, SecondDatabaseIsAskedNext)
{
    services.databases[Second][QStringLiteral("arrow.svg")] = "2x2";
    SymbolSource source;
    EXPECT_EQ(source.getSymbolData(QStringLiteral("arrow.svg")), QByteArray("2x2"));
    EXPECT_EQ(services.lookUps, (QStringList{QStringLiteral("symbols.db:arrow.svg"),
                                             QStringLiteral("legacy_symbols.db:arrow.svg")}));
    EXPECT_EQ(services.databasePaths.value(1),
              QCoreApplication::applicationDirPath() + QStringLiteral("/legacy_symbols.db"));
}

TEST_F(Symbols, UnknownNameGivesNothing)
{
    SymbolSource source;
    EXPECT_TRUE(source.getSymbolData(QStringLiteral("none")).isEmpty());
    EXPECT_TRUE(source.getSymbolData(QString()).isEmpty());
}

TEST_F(Symbols, FolderOfTheNameDoesNotCount)
{
    services.databases[First][QStringLiteral("arrow.svg")] = "1x1";
    SymbolSource source;
    for (const char* name : {"/usr/share/arrow.svg", "C:/symbols/arrow.svg", "../arrow.svg"}) {
        EXPECT_EQ(source.getSymbolData(QLatin1String(name)), QByteArray("1x1")) << name;
    }
}

TEST_F(Symbols, DatabasesAreOpenedOnceAndDeletedWithTheSource)
{
    {
        SymbolSource source;
        EXPECT_EQ(services.databasesAlive, 0) << "not before the first need";
        (void)source.getSymbolData(QStringLiteral("a"));
        (void)source.getSymbolData(QStringLiteral("b"));
        EXPECT_EQ(services.databasesAlive, 2);
        EXPECT_EQ(services.databasePaths.size(), 2);
    }
    EXPECT_EQ(services.databasesAlive, 0);
}

TEST_F(Symbols, DocumentIsReplacedByTheHostsSymbol)
{
    services.conversions["<svg/>"] = "8x8";
    services.conversions["<svg></svg>"] = "9x9";
    {
        SymbolSource source;
        QByteArray first = "<svg/>";
        source.convertSvgSymbol(first);
        EXPECT_EQ(first, QByteArray("8x8"));
        QByteArray second = "<svg></svg>";
        source.convertSvgSymbol(second);
        EXPECT_EQ(second, QByteArray("9x9"));
        EXPECT_EQ(services.creatorsMade, 1) << "one creator serves all";
        EXPECT_TRUE(services.lookUps.isEmpty());
    }
    EXPECT_EQ(services.creatorsAlive, 0);
}

TEST_F(Symbols, DocumentThatCannotBeConvertedGivesNothing)
{
    SymbolSource source;
    QByteArray data = "no svg";
    source.convertSvgSymbol(data);
    EXPECT_TRUE(data.isEmpty());
}

} // namespace
