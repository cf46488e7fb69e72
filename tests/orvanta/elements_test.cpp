#include "orvanta/elements.h"

#include "tests/orvanta/element_support.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::Literals::StringLiterals;

using element_support::ParsedElement;

namespace {

QByteArray wrapped(const char* text)
{
    return QByteArray("<e>") + text + "</e>";
}

} // namespace

TEST(ElementValues, IntegersAreBaseTenSignedAnd32BitsWide)
{
    const struct
    {
        const char* text;
        int value;
    } rows[] = {
        {"0", 0},
        {"42", 42},
        {"-42", -42},
        {"+7", 7},
        {"007", 7},
        {" 12 ", 12},
        {"\n12\t", 12},
        {"2147483647", std::numeric_limits<int>::max()},
        {"-2147483648", std::numeric_limits<int>::min()},
        {"2147483648", 0},
        {"-2147483649", 0},
        {"4278190080", 0},
        {"99999999999999999999", 0},
        {"0x10", 0},
        {"1e3", 0},
        {"1.5", 0},
        {"1,000", 0},
        {"1 000", 0},
        {"abc", 0},
        {"12abc", 0},
        {"", 0},
        {"<b>5</b>", 5},
        {"<![CDATA[6]]>", 6},
        {"<!-- 1 -->8", 8},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(orvanta::readInteger(ParsedElement(wrapped(row.text).constData()).element()),
                  row.value);
    }
}

TEST(ElementValues, DoublesHaveADecimalPointWhateverTheLocale)
{
    const struct
    {
        const char* text;
        double value;
    } rows[] = {
        {"0", 0.0},     {"10.7", 10.7}, {"-1.25", -1.25}, {" 3.5 ", 3.5},
        {"1e2", 100.0}, {"10,7", 0.0},  {"1,000.5", 0.0}, {"abc", 0.0},
        {"", 0.0},      {"1e400", 0.0}, {"-1e400", 0.0},  {"12px", 0.0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(orvanta::readDouble(ParsedElement(wrapped(row.text).constData()).element()),
                  row.value);
    }
}

TEST(ElementValues, OnlyExactlyTrueIsTrue)
{
    EXPECT_TRUE(orvanta::readFlag(ParsedElement("<e>true</e>").element()));
    for (const char* text : {"True", "TRUE", "1", "yes", " true", "true ", "false", ""}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(orvanta::readFlag(ParsedElement(wrapped(text).constData()).element()));
    }
}

TEST(ElementValues, ListsAreTheTextsOfAllChildElements)
{
    const struct
    {
        const char* xml;
        QStringList texts;
    } rows[] = {
        {"<e/>", {}},
        {"<e>text alone</e>", {}},
        {"<e><a>x</a><b/></e>", {u"x"_s, QString()}},
        {"<e>1<string>one</string>2<!-- x --><string>two</string>3</e>", {u"one"_s, u"two"_s}},
        {"<e><a>o<b>n</b>e</a></e>", {u"one"_s}},
        {"<e><a>same</a><a>same</a></e>", {u"same"_s, u"same"_s}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.xml);
        EXPECT_EQ(orvanta::readTexts(ParsedElement(row.xml).element()), row.texts);
    }
}
