#include "tavrel/field_run.h"

#include "tavrel/bounded_stream.h"
#include "tests/tavrel/bytes.h"

#include <gtest/gtest.h>

using namespace tavrel;
using tavrel_test::hex;

namespace {

using Fields = std::tuple<bool, qint32, double, quint32, bool>;

constexpr const char* WholeRun = "01"               // true
                                 "FFFFFFFE"         // -2
                                 "4052000000000000" // 72.0
                                 "FFFFFFFE"         // 4294967294
                                 "7F";              // true: every byte but 0 is

Fields readRun(QDataStream& stream)
{
    return readFields<bool, qint32, double, quint32, bool>(stream);
}

Fields readOneByOne(QDataStream& stream)
{
    Fields fields;
    std::get<0>(fields) = readBool(stream);
    std::get<1>(fields) = readInt32(stream);
    std::get<2>(fields) = readDouble(stream);
    std::get<3>(fields) = readUInt32(stream);
    std::get<4>(fields) = readBool(stream);
    return fields;
}

TEST(FieldRun, IsReadInItsOrder)
{
    QDataStream stream(hex(WholeRun));
    EXPECT_EQ(readRun(stream), Fields(true, -2, 72.0, 4294967294U, true));
    EXPECT_TRUE(stream.atEnd());
}

TEST(FieldRun, LeavesWhatStandsBehindIt)
{
    QDataStream stream(hex("00000007 00000009"));
    EXPECT_EQ(readFields<qint32>(stream), std::tuple(7));
    EXPECT_EQ(readInt32(stream), 9);
}

TEST(FieldRun, IsAsReadFieldByFieldWhereverTheStreamEnds)
{
    const QByteArray whole = hex(WholeRun);
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        SCOPED_TRACE(length);
        QDataStream atOnce(whole.first(length));
        QDataStream oneByOne(whole.first(length));
        EXPECT_EQ(readRun(atOnce), readOneByOne(oneByOne));
        EXPECT_TRUE(atOnce.atEnd());
        EXPECT_EQ(atOnce.status(), oneByOne.status());
    }
}

} // namespace
