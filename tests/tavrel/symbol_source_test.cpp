#include "tavrel/symbols.h"
#include "tests/support/test_host/test_host.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using tavrel::SymbolSource;

namespace {

const QString First = u"/symbols.db"_s;
const QString Second = u"/legacy_symbols.db"_s;
const QStringList BothAreAsked = lines({"symboldb:1 setDatabasePath 'symbols.db'",
                                        "symboldb:1 getDataFromSymbolName 'arrow.svg'",
                                        "symboldb:2 setDatabasePath 'legacy_symbols.db'",
                                        "symboldb:2 getDataFromSymbolName 'arrow.svg'"});

class Symbols : public testing::Test
{
protected:
    Symbols()
    {
        host.behavior().conversion = recorder::Behavior::Conversion::OfAnything;
        host.behavior().symbols.emplace();
    }
    void store(const QString& database, const QByteArray& data)
    {
        const QString path = QCoreApplication::applicationDirPath() + database;
        (*host.behavior().symbols)[path][u"arrow.svg"_s] = data;
    }

    TestHost host;
};

TEST_F(Symbols, FirstDatabaseIsEnoughWhenItKnowsTheName)
{
    store(First, "1x1");
    store(Second, "2x2");
    SymbolSource source;
    EXPECT_EQ(source.getSymbolData(u"arrow.svg"_s), QByteArray("1x1"));
    EXPECT_EQ(host.calls(), BothAreAsked.first(2));
}

TEST_F(Symbols, SecondDatabaseIsAskedNext)
{
    store(Second, "2x2");
    SymbolSource source;
    EXPECT_EQ(source.getSymbolData(u"arrow.svg"_s), QByteArray("2x2"));
    EXPECT_EQ(host.calls(), BothAreAsked);
}

TEST_F(Symbols, UnknownNameGivesNothing)
{
    SymbolSource source;
    EXPECT_TRUE(source.getSymbolData(u"none"_s).isEmpty());
    EXPECT_TRUE(source.getSymbolData(QString()).isEmpty());
}

TEST_F(Symbols, FolderOfTheNameDoesNotCount)
{
    store(First, "1x1");
    SymbolSource source;
    for (const char* name : {"/usr/share/arrow.svg", "C:/symbols/arrow.svg", "../arrow.svg"}) {
        EXPECT_EQ(source.getSymbolData(QLatin1String(name)), QByteArray("1x1")) << name;
    }
}

TEST_F(Symbols, DatabasesAreOpenedOnceAndDeletedWithTheSource)
{
    {
        SymbolSource source;
        EXPECT_EQ(host.recorder().symbolDatabases(), 0) << "not before the first need";
        (void)source.getSymbolData(u"a"_s);
        (void)source.getSymbolData(u"b"_s);
        EXPECT_EQ(host.recorder().symbolDatabases(), 2);
        EXPECT_EQ(host.count(u"setDatabasePath"_s), 2);
    }
    EXPECT_EQ(host.recorder().symbolDatabases(), 0);
}

TEST_F(Symbols, DocumentIsReplacedByTheHostsSymbol)
{
    {
        SymbolSource source;
        QByteArray first = "<svg/>";
        source.convertSvgSymbol(first);
        EXPECT_EQ(first, QByteArray("symbol of <svg/>"));
        QByteArray second = "<svg></svg>";
        source.convertSvgSymbol(second);
        EXPECT_EQ(second, QByteArray("symbol of <svg></svg>"));
        EXPECT_EQ(host.recorder().symbolCreatorsMade(), 1) << "one creator serves all";
        EXPECT_EQ(host.callsWith("convertSvgToSymbol"),
                  lines({"symbolcreator convertSvgToSymbol [0 0 0 0]",
                         "symbolcreator convertSvgToSymbol [0 0 0 0]"}));
        EXPECT_TRUE(host.callsWith("symboldb").isEmpty());
    }
    EXPECT_EQ(host.recorder().symbolCreators(), 0);
}

TEST_F(Symbols, DocumentThatCannotBeConvertedGivesNothing)
{
    host.behavior().conversion = recorder::Behavior::Conversion::Fails;
    SymbolSource source;
    QByteArray data = "no svg";
    source.convertSvgSymbol(data);
    EXPECT_TRUE(data.isEmpty());
}

} // namespace
