#include "tavrel/datasource_binder.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using namespace tavrel;

namespace {

struct KeyRow
{
    const char* key;
    DatasourceKind kind;
    const char* dateFormat;
    const char* timeFormat;
};

TEST(DatasourceKeys, EachKeyHasItsRule)
{
    using Kind = DatasourceKind;
    for (const KeyRow& row :
         {KeyRow{"_SEQUENCE", Kind::Sequence, "", ""}, KeyRow{"_ROW", Kind::None, "", ""},
          KeyRow{"_DATE", Kind::System, "ddd MMM d yyyy", ""},
          KeyRow{"_DATES", Kind::System, "d/MM/yyyy", ""},
          KeyRow{"_DATEX", Kind::System, "MMMM-d-yy", ""},
          KeyRow{"_TIME", Kind::System, "", "hh:mm:ss"}, KeyRow{"Record", Kind::Database, "", ""},
          KeyRow{"Value", Kind::Database, "", ""}}) {
        SCOPED_TRACE(row.key);
        const DatasourceRule* rule = ruleOfKey(QLatin1String(row.key));
        ASSERT_NE(rule, nullptr);
        EXPECT_EQ(rule->kind, row.kind);
        EXPECT_EQ(rule->dateFormat, QLatin1String(row.dateFormat));
        EXPECT_EQ(rule->timeFormat, QLatin1String(row.timeFormat));
    }
}

TEST(DatasourceKeys, AreExactToTheLetter)
{
    for (const char* key : {"", "_date", "_DATE ", "%_DATE%", "DATE", "record", "_SPECIAL", "x"}) {
        EXPECT_EQ(ruleOfKey(QLatin1String(key)), nullptr) << key;
    }
}

TEST(DatasourceKeys, OneOfThemPointsIntoTheText)
{
    EXPECT_TRUE(isEmbeddedKey(u"_SPECIAL"_s));
    EXPECT_FALSE(isEmbeddedKey(u"_special"_s));
    EXPECT_FALSE(isEmbeddedKey(u"_DATE"_s));
    EXPECT_FALSE(isEmbeddedKey(QString()));
}

struct CodeRow
{
    const char* text;
    const char* key; // null for none
};

TEST(DatasourceKeys, AreFoundInATextBetweenPercentSigns)
{
    for (const CodeRow& row :
         {CodeRow{"Lot %_DATES% / %_TIME%", "_DATES"}, CodeRow{"%_TIME%%_DATE%", "_DATE"},
          CodeRow{"%_SEQUENCE%", "_SEQUENCE"}, CodeRow{"%_DATE% %_ROW%", "_ROW"},
          CodeRow{"%_DATEX%", "_DATEX"}, CodeRow{"a%Record%b", "Record"},
          CodeRow{"%Value% %Record%", "Record"}, CodeRow{"%Value%", "Value"},
          CodeRow{"_DATE", nullptr}, CodeRow{"%_DATE", nullptr}, CodeRow{"%_date%", nullptr},
          CodeRow{"% _DATE %", nullptr}, CodeRow{"%_SPECIAL%", nullptr}, CodeRow{"", nullptr}}) {
        SCOPED_TRACE(row.text);
        const DatasourceRule* rule = ruleOfKeyIn(QLatin1String(row.text));
        ASSERT_EQ(rule != nullptr, row.key != nullptr);
        if (rule != nullptr) {
            EXPECT_EQ(rule->key, QLatin1String(row.key));
        }
    }
}

} // namespace
