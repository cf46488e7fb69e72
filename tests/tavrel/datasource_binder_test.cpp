#include "tavrel/datasource_binder.h"
#include "tests/tavrel/fake_host.h"
#include "tests/tavrel/fake_items.h"

#include <gtest/gtest.h>

using tavrel::DatasourceBinder;
using tavrel::SequenceSettings;
using namespace tavrel_test;

namespace {

class Binding : public testing::Test
{
protected:
    Binding()
    {
        sequence.sequenceTrailingValue = 77;
        sequence.sequenceStart = 10;
        sequence.sequenceEnd = 99;
        sequence.sequenceStep = -1;
        sequence.sequenceZeroPad = 4;
        sequence.sequencePrefix = QStringLiteral("No");
        sequence.sequenceSuffix = QStringLiteral("!");
    }

    bool bind(const char* key, const char* text = "")
    {
        const DatasourceBinder binder(&fake.datasources, sequence);
        return binder.bindDatasource(item, QLatin1String(key), QLatin1String(text));
    }

    FakeHost fake;
    SequenceSettings sequence;
    FakeText item{fake.calls, 1};
};

TEST_F(Binding, SequenceTakesTheLabelsSettings)
{
    EXPECT_TRUE(bind("_SEQUENCE"));
    EXPECT_EQ(fake.calls.lines(),
              (QStringList{
                  QStringLiteral("datasources createDatasource \"SequenceDatasource\""),
                  QStringLiteral("item1 setDatasourceId 1"),
                  QStringLiteral("datasources getDatasource 1"),
                  QStringLiteral("datasource1 setDatasourceProperty \"Prefix\" \"No\""),
                  QStringLiteral("datasource1 setDatasourceProperty \"Suffix\" \"!\""),
                  QStringLiteral("datasource1 setDatasourceProperty \"Start\" 10"),
                  QStringLiteral("datasource1 setDatasourceProperty \"End\" 99"),
                  QStringLiteral("datasource1 setDatasourceProperty \"Step\" -1"),
                  QStringLiteral("datasource1 setDatasourceProperty \"ZeroPad\" 4"),
              }));
}

struct SystemRow
{
    const char* key;
    const char* date;
    const char* time;
};

TEST_F(Binding, ClockKeysTakeDateThenTimeFormat)
{
    int id = 0;
    for (const SystemRow& row :
         {SystemRow{"_DATE", "ddd MMM d yyyy", ""}, SystemRow{"_DATES", "d/MM/yyyy", ""},
          SystemRow{"_DATEX", "MMMM-d-yy", ""}, SystemRow{"_TIME", "", "hh:mm:ss"}}) {
        SCOPED_TRACE(row.key);
        fake.calls.clear();
        EXPECT_TRUE(bind(row.key));
        const QString source = QStringLiteral("datasource%1 setDatasourceProperty ").arg(++id);
        const QString format = QStringLiteral("\"%1\" \"%2\"");
        EXPECT_EQ(fake.calls.lines(),
                  (QStringList{
                      QStringLiteral("datasources createDatasource \"SystemDatasource\""),
                      QStringLiteral("item1 setDatasourceId %1").arg(id),
                      QStringLiteral("datasources getDatasource %1").arg(id),
                      source + format.arg(QLatin1String("DateFormat"), QLatin1String(row.date)),
                      source + format.arg(QLatin1String("TimeFormat"), QLatin1String(row.time)),
                  }));
    }
}

TEST_F(Binding, EveryItemGetsASourceOfItsOwn)
{
    EXPECT_TRUE(bind("_DATE"));
    EXPECT_TRUE(bind("_DATE"));
    EXPECT_EQ(fake.calls.with("createDatasource").size(), 2);
    EXPECT_EQ(fake.calls.with("setDatasourceId").value(1),
              QStringLiteral("item1 setDatasourceId 2"));
}

TEST_F(Binding, DatabaseFieldsAreNotCarriedOver)
{
    EXPECT_FALSE(bind("Record"));
    EXPECT_FALSE(bind("Value"));
    EXPECT_FALSE(bind("_SPECIAL", "%Value%"));
    EXPECT_TRUE(fake.calls.lines().isEmpty());
}

TEST_F(Binding, OtherKeysBindNothing)
{
    for (const char* key : {"", "_ROW", "_date", "anything", "%_DATE%"}) {
        EXPECT_TRUE(bind(key, "%_DATE%")) << key;
    }
    EXPECT_TRUE(bind("_SPECIAL", ""));
    EXPECT_TRUE(bind("_SPECIAL", "no key _DATE in here"));
    EXPECT_TRUE(bind("_SPECIAL", "%_ROW% hides %_DATE%"));
    EXPECT_TRUE(fake.calls.lines().isEmpty());
}

TEST_F(Binding, KeyInTheTextIsTheFirstOfTheList)
{
    EXPECT_TRUE(bind("_SPECIAL", "Lot %_DATES% / %_TIME%"));
    EXPECT_EQ(fake.calls.with("DateFormat"),
              QStringList(QStringLiteral(
                  "datasource1 setDatasourceProperty \"DateFormat\" \"d/MM/yyyy\"")));
    EXPECT_EQ(fake.calls.with("createDatasource").size(), 1);
}

TEST_F(Binding, HostWithoutTheNewSourceIsHarmless)
{
    fake.datasources.forgetsSources = true;
    EXPECT_TRUE(bind("_SEQUENCE"));
    EXPECT_TRUE(bind("_DATE"));
    EXPECT_TRUE(fake.calls.with("setDatasourceProperty").isEmpty());
}

} // namespace
