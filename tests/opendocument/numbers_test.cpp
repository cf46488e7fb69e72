// Numbers, units and lengths as documents write them.

#include "documents.h"

#include "opendocument/numbers.h"

#include <QLocale>

#include <gtest/gtest.h>

using namespace opendocument;
using namespace Qt::StringLiterals;

TEST(Numbers, AreReadWithADecimalPointInEveryLocale)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(toNumber(u"1.5"), 1.5);
    EXPECT_FALSE(toNumber(u"1,5"));
    QLocale::setDefault(before);
}

TEST(Numbers, AreFiniteOrNone)
{
    const QString notNumbers[] = {u""_s,     u"abc"_s,   u"nan"_s,   u"NaN"_s, u"inf"_s,
                                  u"-inf"_s, u"1e400"_s, u"1.2.3"_s, u"%"_s};
    for (const QString& text : notNumbers) {
        SCOPED_TRACE(text.toStdString());
        EXPECT_FALSE(toNumber(text));
    }
    EXPECT_EQ(toNumber(u"1e308"), 1e308);
    EXPECT_EQ(toNumber(u"-2"), -2.0);
    EXPECT_EQ(toNumber(u" 3 "), 3.0);
}

TEST(Lengths, HaveTheUnitOfTheirLastTwoCharacters)
{
    EXPECT_EQ(unitOf(u"21.59cm"_s), u"cm"_s);
    EXPECT_EQ(unitOf(u"5cm"_s), u"cm"_s);
    EXPECT_EQ(unitOf(u"72"_s), u"72"_s);
    EXPECT_EQ(unitOf(u"7"_s), u"7"_s);
    EXPECT_EQ(unitOf(QString()), QString());
}

TEST(Lengths, KnowFourUnitsExactly)
{
    EXPECT_EQ(pointsPerUnit(u"in"), 72.0);
    EXPECT_EQ(pointsPerUnit(u"cm"), 72.0 / 2.54);
    EXPECT_EQ(pointsPerUnit(u"mm"), 283.46456692913387);
    EXPECT_EQ(pointsPerUnit(u"pc"), 12.0);
    for (const QStringView unknown : {u"", u"pt", u"IN", u"Cm", u"inch"}) {
        EXPECT_FALSE(pointsPerUnit(unknown));
    }
}

TEST(Lengths, AreReadInTheGivenUnitWhateverTheirOwn)
{
    EXPECT_EQ(toLength(u"2in", 72.0), 144.0);
    EXPECT_EQ(toLength(u"2mm", 72.0), 144.0);
    EXPECT_EQ(toLength(u"-0.5pt", 12.0), -6.0);
}

TEST(Lengths, ThatDoNotConvertAreZero)
{
    for (const QStringView text : {u"", u"i", u"in", u"x1in", u"nanin", u"infin", u"72"}) {
        SCOPED_TRACE(text.toString().toStdString());
        EXPECT_FALSE(toLength(text, 72.0));
    }
    EXPECT_FALSE(toLength(u"1e308in", 72.0)) << "would be infinite";
    EXPECT_EQ(toLength(u"172", 72.0), 72.0) << "the last two characters are always the unit";
}

TEST(Lengths, LeaveTheTargetAloneWhenAbsentOrDamaged)
{
    const xmllimits::Element element = elementOf("<e a=\"2in\" b=\"xin\"/>");
    double target = 5;
    EXPECT_FALSE(readLength(element, u"b"_s, 72, target));
    EXPECT_FALSE(readLength(element, u"c"_s, 72, target));
    EXPECT_FALSE(readLength(xmllimits::Element(), u"a"_s, 72, target));
    EXPECT_EQ(target, 5);
    EXPECT_TRUE(readLength(element, u"a"_s, 72, target));
    EXPECT_EQ(target, 144);
}
