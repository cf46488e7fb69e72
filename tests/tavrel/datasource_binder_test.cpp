#include "host/items/simple_text_item.h"
#include "tavrel/datasource_binder.h"
#include "tests/support/test_host/test_host.h"

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::Literals::StringLiterals;

using tavrel::DatasourceBinder;
using tavrel::SequenceSettings;

namespace {

class Binding : public testing::Test
{
protected:
    Binding()
    {
        item.reset(dynamic_cast<SimpleTextItem*>(
            host.canvas()->getClassFactory()->create(KestTypes::SimpleText)));
        host.forgetCalls();
        sequence.sequenceTrailingValue = 77;
        sequence.sequenceStart = 10;
        sequence.sequenceEnd = 99;
        sequence.sequenceStep = -1;
        sequence.sequenceZeroPad = 4;
        sequence.sequencePrefix = u"No"_s;
        sequence.sequenceSuffix = u"!"_s;
    }

    bool bind(const char* key, const char* text = "")
    {
        const DatasourceBinder binder(host.datasources(), sequence);
        return binder.bindDatasource(*item, QLatin1String(key), QLatin1String(text));
    }

    TestHost host;
    SequenceSettings sequence;
    std::unique_ptr<SimpleTextItem> item;
};

TEST_F(Binding, SequenceTakesTheLabelsSettings)
{
    EXPECT_TRUE(bind("_SEQUENCE"));
    EXPECT_EQ(host.calls(), lines({"datasources createDatasource 'SequenceDatasource'",
                                   "item:1 setDatasourceId 1", "datasources getDatasource 1",
                                   "datasource:1 setDatasourceProperty 'Prefix' 'No'",
                                   "datasource:1 setDatasourceProperty 'Suffix' '!'",
                                   "datasource:1 setDatasourceProperty 'Start' 10",
                                   "datasource:1 setDatasourceProperty 'End' 99",
                                   "datasource:1 setDatasourceProperty 'Step' -1",
                                   "datasource:1 setDatasourceProperty 'ZeroPad' 4"}));
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
        host.forgetCalls();
        EXPECT_TRUE(bind(row.key));
        const QString source = u"datasource:%1 setDatasourceProperty "_s.arg(++id);
        const QString format = u"'%1' '%2'"_s;
        EXPECT_EQ(host.calls(),
                  (QStringList{
                      u"datasources createDatasource 'SystemDatasource'"_s,
                      u"item:1 setDatasourceId %1"_s.arg(id),
                      u"datasources getDatasource %1"_s.arg(id),
                      source + format.arg(QLatin1String("DateFormat"), QLatin1String(row.date)),
                      source + format.arg(QLatin1String("TimeFormat"), QLatin1String(row.time)),
                  }));
    }
}

TEST_F(Binding, EveryItemGetsASourceOfItsOwn)
{
    EXPECT_TRUE(bind("_DATE"));
    EXPECT_TRUE(bind("_DATE"));
    EXPECT_EQ(host.callsWith("createDatasource").size(), 2);
    EXPECT_EQ(host.callsWith("setDatasourceId").value(1), u"item:1 setDatasourceId 2"_s);
}

TEST_F(Binding, DatabaseFieldsAreNotCarriedOver)
{
    EXPECT_FALSE(bind("Record"));
    EXPECT_FALSE(bind("Value"));
    EXPECT_FALSE(bind("_SPECIAL", "%Value%"));
    EXPECT_TRUE(host.calls().isEmpty());
}

TEST_F(Binding, OtherKeysBindNothing)
{
    for (const char* key : {"", "_ROW", "_date", "anything", "%_DATE%"}) {
        EXPECT_TRUE(bind(key, "%_DATE%")) << key;
    }
    EXPECT_TRUE(bind("_SPECIAL", ""));
    EXPECT_TRUE(bind("_SPECIAL", "no key _DATE in here"));
    EXPECT_TRUE(bind("_SPECIAL", "%_ROW% hides %_DATE%"));
    EXPECT_TRUE(host.calls().isEmpty());
}

TEST_F(Binding, KeyInTheTextIsTheFirstOfTheList)
{
    EXPECT_TRUE(bind("_SPECIAL", "Lot %_DATES% / %_TIME%"));
    EXPECT_EQ(host.callsWith("DateFormat"),
              QStringList(u"datasource:1 setDatasourceProperty 'DateFormat' 'd/MM/yyyy'"_s));
    EXPECT_EQ(host.callsWith("createDatasource").size(), 1);
}

TEST_F(Binding, HostWithoutTheNewSourceIsHarmless)
{
    host.behavior().hidesDatasources = true;
    EXPECT_TRUE(bind("_SEQUENCE"));
    EXPECT_TRUE(bind("_DATE"));
    EXPECT_TRUE(host.callsWith("setDatasourceProperty").isEmpty());
}

} // namespace
