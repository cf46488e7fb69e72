// Plain texts have the same result as in Qt, and all others are passed to Qt.
#include "numeric/plain_number.h"

#include <gtest/gtest.h>

#include <QString>

#include <rapidcheck/gtest.h>

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(PlainNumber, IsWhatQtReadsOfDigits)
{
    for (const QString& text :
         {u"0"_s, u"7"_s, u"0007"_s, u"72"_s, u"4294967296"_s, u"18446744073709551615"_s}) {
        EXPECT_EQ(plainWholeNumber(text), text.toULongLong()) << qPrintable(text);
        EXPECT_EQ(plainDecimal(text), text.toDouble()) << qPrintable(text);
    }
}

TEST(PlainNumber, IsWhatQtReadsOfDecimals)
{
    // Including halves of the last digit, where simple summation of digits is wrong.
    for (const QString& text : {u"0.0"_s, u"0.1"_s, u"2.375"_s, u"00.50"_s, u"9007199254740993.0"_s,
                                u"0.1234567890123456789012"_s, u"123456789012.34567890123"_s}) {
        EXPECT_EQ(plainDecimal(text), text.toDouble()) << qPrintable(text);
        EXPECT_FALSE(plainWholeNumber(text)) << qPrintable(text);
    }
}

RC_GTEST_PROP(PlainNumber, IsWhatQtReadsOfAnyDecimal, (quint32 whole, quint32 part))
{
    const QString text = u"%1.%2"_s.arg(whole).arg(part);
    RC_ASSERT(plainDecimal(text) == text.toDouble());
}

TEST(PlainNumber, LeavesAllElseToQt)
{
    for (const char16_t* text :
         {u"", u".", u"1.", u".5", u"1.2.3", u"-1", u"+1", u" 1", u"1 ", u"1e5", u"1,5", u"inf",
          u"nan", u"0x10", u"\u0661", u"\u0131", u"\uff11"}) {
        EXPECT_FALSE(plainWholeNumber(text)) << qPrintable(QString::fromUtf16(text));
        EXPECT_FALSE(plainDecimal(text)) << qPrintable(QString::fromUtf16(text));
    }
}

TEST(PlainNumber, LeavesWhatIsTooLongOrTooLargeToQt)
{
    EXPECT_FALSE(plainWholeNumber(u"18446744073709551616"));
    EXPECT_EQ(plainWholeNumber(u"000018446744073709551615"), std::numeric_limits<quint64>::max());
    EXPECT_FALSE(plainWholeNumber(u"0000018446744073709551615"));
    EXPECT_EQ(plainDecimal(QString(24, u'1')), QString(24, u'1').toDouble());
    EXPECT_FALSE(plainDecimal(QString(25, u'1')));
}

} // namespace
