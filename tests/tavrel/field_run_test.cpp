#include "tavrel/field_run.h"

#include "tavrel/bounded_stream.h"
#include "tests/tavrel/bytes.h"

#include <QBuffer>
#include <QTemporaryFile>

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

// By the stream's own operators, which the format is defined by.
Fields readOneByOne(QDataStream& stream)
{
    Fields fields;
    std::apply([&stream](auto&... field) { (stream >> ... >> field); }, fields);
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

TEST(FieldRun, IsTheSameInAFileAndBehindALookAhead)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write(hex("0A0B") + hex(WholeRun) + hex("0C"));
    file.seek(0);
    QByteArray bytes = file.readAll();
    QBuffer buffer(&bytes);
    ASSERT_TRUE(buffer.open(QIODevice::ReadOnly));
    file.seek(0);
    for (QIODevice* device : {static_cast<QIODevice*>(&file), static_cast<QIODevice*>(&buffer)}) {
        QDataStream stream(device);
        skipBytes(stream, 1);
        EXPECT_EQ(device->peek(3).size(), 3) << "as pictures are told apart";
        EXPECT_EQ(std::get<0>(readFields<quint8>(stream)), 0x0B);
        EXPECT_EQ(readRun(stream), Fields(true, -2, 72.0, 4294967294U, true));
        EXPECT_EQ(bytesLeft(stream), 1);
        EXPECT_EQ(device->readAll(), hex("0C"));
    }
}

} // namespace
