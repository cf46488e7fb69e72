// Words that are nearly right.

#include "console/command_line.h"

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;

TEST(Suggestion, NamesTheNearestWord)
{
    const QStringList commands{u"import"_s, u"inspect"_s, u"report"_s};
    EXPECT_EQ(console::suggestion(u"imprt"_s, commands), u" Did you mean \"import\"?"_s);
    EXPECT_EQ(console::suggestion(u"insepct"_s, commands), u" Did you mean \"inspect\"?"_s);
    EXPECT_EQ(console::suggestion(u"Import"_s, commands), u" Did you mean \"import\"?"_s);
}

TEST(Suggestion, IsEmptyWithoutASimilarName)
{
    EXPECT_EQ(console::suggestion(u"convert"_s, {u"import"_s, u"inspect"_s}), QString());
    EXPECT_EQ(console::suggestion(u"import"_s, {}), QString());
}

} // namespace
