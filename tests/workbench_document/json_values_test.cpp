#include "workbench/document/item_json_values.h"

#include "tests/support/encoded_picture.h"
#include "workbench/document/document_limits.h"

#include <QJsonArray>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::Literals::StringLiterals;

using namespace workbench::document;
using fields::Json;

namespace {

template <class T>
bool reads(const QJsonValue& json)
{
    T value{};
    return Json<T>::read(json, value);
}

QJsonObject pictureOf(const QByteArray& png, const char* pixels)
{
    return {{QLatin1String("png"), QString::fromLatin1(png.toBase64())},
            {QLatin1String("pixels"), QLatin1String(pixels)}};
}

} // namespace

TEST(JsonValues, TakeWholeNumbersInTheirRange)
{
    EXPECT_TRUE(reads<int>(-2147483648.0));
    EXPECT_TRUE(reads<int>(2147483647));
    EXPECT_FALSE(reads<int>(2147483648.0));
    EXPECT_FALSE(reads<int>(1.5));
    EXPECT_FALSE(reads<int>(u"1"_s));
    EXPECT_FALSE(reads<int>(true));
    EXPECT_TRUE(reads<quint16>(65535));
    EXPECT_FALSE(reads<quint16>(65536));
    EXPECT_FALSE(reads<quint16>(-1));
    EXPECT_TRUE(reads<signed char>(-128));
    EXPECT_FALSE(reads<signed char>(128));
}

TEST(JsonValues, WriteInvalidNumbersAsZero)
{
    EXPECT_EQ(Json<double>::write(std::numeric_limits<double>::quiet_NaN()), QJsonValue(0.0));
    EXPECT_EQ(Json<double>::write(std::numeric_limits<double>::infinity()), QJsonValue(0.0));
    EXPECT_EQ(Json<double>::write(-1e300), QJsonValue(-1e300));
}

TEST(JsonValues, KeepTextsThatUnicodeDoesNotAllow)
{
    for (const QString& text : {QString(), u"\u00e4\"\\\n"_s, QString(QChar(0)),
                                QString(QChar(0xd800)), u"a"_s + QChar(0xdc00)}) {
        QString read;
        ASSERT_TRUE(Json<QString>::read(Json<QString>::write(text), read));
        EXPECT_EQ(read, text);
    }
    EXPECT_FALSE(reads<QString>(QJsonObject{{QLatin1String("utf16"), QLatin1String("YQ==")}}))
        << "half a character";
    EXPECT_FALSE(reads<QString>(QJsonObject{{QLatin1String("utf16"), QLatin1String("*")}}));
    EXPECT_FALSE(reads<QString>(QJsonObject()));
}

TEST(JsonValues, WriteReadableColors)
{
    EXPECT_EQ(Json<QColor>::write(QColor(1, 2, 3)), QJsonValue(QLatin1String("#ff010203")));
    EXPECT_EQ(Json<QColor>::write(QColor(Qt::transparent)), QJsonValue(QLatin1String("#00000000")));
    EXPECT_EQ(Json<QColor>::write(QColor()), QJsonValue());
    EXPECT_EQ(Json<QColor>::write(QColor::fromRgba64(1, 2, 3, 4)),
              QJsonValue(QLatin1String("#0004000100020003")));
    for (const char* text : {"", "#", "red", "#12345", "ff010203", "#ff01020g", "#+f010203",
                             "#-f010203", "#ff0102030"}) {
        EXPECT_FALSE(reads<QColor>(QJsonValue(QLatin1String(text)))) << text;
    }
    EXPECT_FALSE(reads<QColor>(QJsonValue(7)));
}

TEST(JsonValues, TakePointsAndSizesAsPairs)
{
    EXPECT_TRUE(reads<QPointF>(QJsonArray{1, 2.5}));
    EXPECT_FALSE(reads<QPointF>(QJsonArray{1}));
    EXPECT_FALSE(reads<QSizeF>(QJsonArray{1, 2, 3}));
    EXPECT_FALSE(reads<QSizeF>(QJsonArray{1, QLatin1String("2")}));
}

TEST(JsonValues, TakePropertiesOfDataSources)
{
    EXPECT_TRUE(reads<QVariantMap>(QJsonObject{{QLatin1String("a"), 1},
                                               {QLatin1String("b"), QLatin1String("x")},
                                               {QLatin1String("c"), QJsonArray()}}));
    for (const QJsonValue& bad : {QJsonValue(), QJsonValue(1.5), QJsonValue(true),
                                  QJsonValue(QJsonArray{1}), QJsonValue(QJsonObject())}) {
        EXPECT_FALSE(reads<QVariantMap>(QJsonObject{{QLatin1String("a"), bad}}));
    }
}

TEST(JsonValues, TakeNoPictureThatIsDamagedOrTooLarge)
{
    EXPECT_TRUE(reads<QImage>(QJsonValue()));
    EXPECT_TRUE(reads<QImage>(pictureOf(monoPng(3, 3), "rgb")));
    EXPECT_FALSE(reads<QImage>(pictureOf(monoPng(3, 3), "other")));
    EXPECT_FALSE(reads<QImage>(pictureOf("no picture", "rgb")));
    EXPECT_FALSE(reads<QImage>(pictureOf("", "rgb")));
    EXPECT_FALSE(reads<QImage>(pictureOf(monoPng(limits::PictureSide + 1, 1), "rgb")));
    EXPECT_FALSE(reads<QImage>(
        pictureOf("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>", "rgb")));
    EXPECT_FALSE(reads<QImage>(QJsonObject()));
}
