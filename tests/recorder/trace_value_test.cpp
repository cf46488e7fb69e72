#include "recorder/trace_value.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

using namespace Qt::Literals::StringLiterals;

using recorder::TraceValue;

namespace {

QByteArray json(const TraceValue& value)
{
    return value.json();
}

TEST(TraceValue, BooleansAndIntegers)
{
    EXPECT_EQ(json(true), "true");
    EXPECT_EQ(json(false), "false");
    EXPECT_EQ(json(0), "0");
    EXPECT_EQ(json(-17), "-17");
    EXPECT_EQ(json(quint16(65535)), "65535");
    EXPECT_EQ(json(static_cast<signed char>(-3)), "-3");
    EXPECT_EQ(json(std::numeric_limits<qint64>::min()), "-9223372036854775808");
    EXPECT_EQ(json(nullptr), "null");
}

TEST(TraceValue, EnumerationsAndFlagsAreNumbers)
{
    EXPECT_EQ(json(Qt::DashLine), "2");
    EXPECT_EQ(json(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter)), "130");
}

struct NumberRow
{
    double value;
    const char* text;
};

const NumberRow Numbers[] = {
    {0, "0"},
    {612, "612"},
    {-1, "-1"},
    {0.1, "0.1"},
    {0.5, "0.5"},
    {283.46456692913387, "283.46456692913387"},
    {1.0 / 3, "0.3333333333333333"},
    {65536, "65536"},
    {1e300, "1e+300"},
    {5e-324, "5e-324"},
    {std::numeric_limits<double>::quiet_NaN(), "\"nan\""},
    {std::numeric_limits<double>::infinity(), "\"inf\""},
    {-std::numeric_limits<double>::infinity(), "\"-inf\""},
};

TEST(TraceValue, NumbersAreTheShortestTextsThatReadBack)
{
    for (const NumberRow& row : Numbers) {
        EXPECT_EQ(json(row.value), row.text);
    }
}

TEST(TraceValue, EveryNumberReadsBackToTheSameBits)
{
    quint64 state = 1;
    for (int i = 0; i < 20000; ++i) {
        state = state * 6364136223846793005U + 1442695040888963407U;
        double value = 0;
        std::memcpy(&value, &state, sizeof value);
        if (!std::isfinite(value)) {
            continue;
        }
        bool ok = false;
        ASSERT_EQ(json(value).toDouble(&ok), value) << json(value).constData();
        ASSERT_TRUE(ok);
    }
}

TEST(TraceValue, NumbersAreTheSameInEveryLocale)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(json(1234.5), "1234.5");
    QLocale::setDefault(before);
}

TEST(TraceValue, TextsAreQuotedAndInUtf8)
{
    EXPECT_EQ(json(QString()), "\"\"");
    EXPECT_EQ(json(u"a \"b\" \\c/"_s), "\"a \\\"b\\\" \\\\c/\"");
    EXPECT_EQ(json(u"1\n2\r\t"_s), "\"1\\n2\\r\\t\"");
    EXPECT_EQ(json(QString(QChar(1)) + QChar(0x1f) + QChar(0)), "\"\\u0001\\u001f\\u0000\"");
    EXPECT_EQ(json(u"Größe €"_s), QByteArray("\"Gr\xc3\xb6\xc3\x9f"
                                             "e \xe2\x82\xac\""));
}

TEST(TraceValue, EveryTextIsValidJson)
{
    QString all;
    for (ushort code = 0; code < 0x3000; ++code) {
        all += QChar(code);
    }
    const QByteArray line = TraceValue::array({all}).json();
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError);
    EXPECT_EQ(document.array().at(0).toString(), all);
    EXPECT_FALSE(line.contains('\n'));
    // Half of a surrogate pair cannot be written in UTF-8; it does not break the line.
    EXPECT_EQ(json(QString(QChar(0xd800))), "\"?\"");
}

TEST(TraceValue, ListsOfTexts)
{
    EXPECT_EQ(json(QStringList()), "[]");
    EXPECT_EQ(json(QStringList{u"a"_s, QString()}), "[\"a\",\"\"]");
}

TEST(TraceValue, ColorsWithAlphaFirst)
{
    EXPECT_EQ(json(QColor(Qt::white)), "\"#ffffffff\"");
    EXPECT_EQ(json(QColor(Qt::transparent)), "\"#00000000\"");
    EXPECT_EQ(json(QColor()), "null");
    EXPECT_EQ(json(QColor(0xAB, 0xCD, 0xEF, 0x80)), "\"#80abcdef\"");
}

TEST(TraceValue, Geometry)
{
    EXPECT_EQ(json(QPointF(1.5, -2)), "[1.5,-2]");
    EXPECT_EQ(json(QSizeF(3, 0.25)), "[3,0.25]");
    EXPECT_EQ(json(QRectF(1, 2, 3, 4)), "[1,2,3,4]");
    EXPECT_EQ(json(QPointF(std::nan(""), 0)), "[\"nan\",0]");
}

TEST(TraceValue, BytesAreCountedAndSummed)
{
    EXPECT_EQ(json(QByteArray()),
              "{\"bytes\":0,\"sha1\":\"da39a3ee5e6b4b0d3255bfef95601890afd80709\"}");
    EXPECT_EQ(json(QByteArray("abc")),
              "{\"bytes\":3,\"sha1\":\"a9993e364706816aba3e25717850c26c9cd0d89d\"}");
}

TEST(TraceValue, PicturesAreTheirSize)
{
    EXPECT_EQ(json(QPixmap()), "{\"width\":0,\"height\":0}");
    EXPECT_EQ(json(QPixmap(12, 7)), "{\"width\":12,\"height\":7}");
}

TEST(TraceValue, PropertiesGoByTheTypeTheyHold)
{
    EXPECT_EQ(json(QVariant(5)), "5");
    EXPECT_EQ(json(QVariant(5U)), "5");
    EXPECT_EQ(json(QVariant(true)), "true");
    EXPECT_EQ(json(QVariant(0.5)), "0.5");
    EXPECT_EQ(json(QVariant(u"5"_s)), "\"5\"");
    EXPECT_EQ(json(QVariant(QStringList{u"x"_s})), "[\"x\"]");
    EXPECT_EQ(json(QVariant()), "\"\"");
}

TEST(TraceValue, ObjectsKeepTheOrderOfTheirFields)
{
    EXPECT_EQ(TraceValue::object({{"z", 1}, {"a", u"b"_s}}).json(), "{\"z\":1,\"a\":\"b\"}");
    EXPECT_EQ(TraceValue::object({}).json(), "{}");
}

} // namespace
