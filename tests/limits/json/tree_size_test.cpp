#include "limits/json/tree_size.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include <array>

#include <malloc.h>

using jsonlimits::treeBytes;

namespace {

// The whole text is looked through.
qint64 countedOf(const QByteArray& json)
{
    return treeBytes(json, json.size() * 217);
}

qint64 memoryInUse()
{
    const struct mallinfo2 info = ::mallinfo2();
    return static_cast<qint64>(info.uordblks + info.hblkhd);
}

qint64 takenByTheParser(const QByteArray& json)
{
    const qint64 before = memoryInUse();
    const QJsonDocument document = QJsonDocument::fromJson(json);
    EXPECT_TRUE(document.isArray()) << json.left(40).toStdString();
    return memoryInUse() - before;
}

TEST(JsonTreeSize, IsAboutWhatTheParserTakes)
{
    constexpr std::array units{"0,",
                               "[],",
                               "[0],",
                               "[[[[0]]]],",
                               "{\"\":0},",
                               "{\"a\":{}},",
                               "{\"a\":{\"b\":[0,\"x\"]}},",
                               "\"ab\",",
                               "\"a longer text of many letters, and of commas [{\",",
                               "\"\xE2\x82\xAC\xE2\x82\xAC\","};
    for (const char* unit : units) {
        SCOPED_TRACE(unit);
        const QByteArray json = "[" + QByteArray(unit).repeated(131'073) + "0]";
        const qint64 taken = takenByTheParser(json);
        if (taken == 0) {
            GTEST_SKIP() << "sanitizers count the memory themselves";
        }
        EXPECT_GE(countedOf(json), taken * 3 / 4);
        EXPECT_LE(countedOf(json), taken * 2);
    }
}

TEST(JsonTreeSize, CountsNothingWithinTexts)
{
    const QByteArray text = "\"[[[[{{{{,,,,\\\"[[[[\\\\\"";
    EXPECT_EQ(countedOf("[" + text + "]"),
              countedOf("[\"" + QByteArray(text.size() - 2, 'x') + "\"]"));
    EXPECT_GT(countedOf("[" + text + ",[0]]"), countedOf("[" + text + ",000]"));
}

TEST(JsonTreeSize, KnowsEmptyListsHoweverTheyAreWritten)
{
    EXPECT_EQ(countedOf("[0,[ \t\r\n]]"), countedOf("[0,[] \t\r\n]"));
    EXPECT_EQ(countedOf("[0,{ \n}]"), countedOf("[0,[] \n]"));
    EXPECT_LT(countedOf("[0,[] ]"), countedOf("[0,[1]]"));
}

TEST(JsonTreeSize, IsJustReachedOrPassed)
{
    for (const QByteArray& json :
         {QByteArray("[[[0,1]],{\"a\":[\"b\"]}]"), QByteArray("[[[[").repeated(50),
          QByteArray("0,").repeated(999)}) {
        SCOPED_TRACE(json.left(20).toStdString());
        EXPECT_FALSE(jsonlimits::isLargerThan(json, countedOf(json)));
        EXPECT_TRUE(jsonlimits::isLargerThan(json, countedOf(json) - 1));
    }
}

// What cannot come near the bound passes unseen, and nothing else does.
TEST(JsonTreeSize, OfNoTextIsUnderestimatedWithoutALook)
{
    for (const QByteArray& json : {QByteArray(), QByteArray("["), QByteArray("[").repeated(1000),
                                   QByteArray("\"").repeated(1001)}) {
        const qint64 unseen = treeBytes(json, json.size() * 1000 + 1000);
        EXPECT_GE(unseen, json.size() < 2 ? 0 : countedOf(json));
    }
}

} // namespace
