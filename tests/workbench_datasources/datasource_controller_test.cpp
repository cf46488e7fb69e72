#include "workbench/datasources/datasource_controller.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using Controller = workbench::datasources::DatasourceController;
using workbench::datasources::SourceValues;

namespace {

const QString Sequence = u"SequenceDatasource"_s;
const QString System = u"SystemDatasource"_s;
const QString TextList = u"TextListDatasource"_s;

/// Creates and fills a source as an importer does.
int create(::DatasourceController& controller, const QString& kind, const QString& property,
           const QVariant& value)
{
    const int id = controller.createDatasource(kind);
    TalDatasource* source = controller.getDatasource(id);
    EXPECT_NE(source, nullptr);
    source->setDatasourceProperty(property, value);
    source->setSelectedFields(source->fields());
    return id;
}

} // namespace

TEST(DatasourceController, CreatesANewSourceEachTime)
{
    Controller controller;
    for (const QString& kind : {Sequence, System, TextList}) {
        const int one = controller.createDatasource(kind);
        const int other = controller.createDatasource(kind);
        EXPECT_NE(one, other);
        ASSERT_NE(controller.getDatasource(one), nullptr);
        EXPECT_NE(controller.getDatasource(one), controller.getDatasource(other));
        EXPECT_EQ(controller.source(one)->kind(), kind);
        EXPECT_FALSE(controller.source(one)->fields().isEmpty());
    }
}

TEST(DatasourceController, KnowsNoOtherKinds)
{
    Controller controller;
    EXPECT_EQ(controller.createDatasource(u"sequencedatasource"_s), Controller::NoSource);
    EXPECT_EQ(controller.getDatasource(Controller::NoSource), nullptr);
    EXPECT_EQ(controller.getDatasource(0), nullptr);
    EXPECT_FALSE(controller.recordText(7, 0));
    EXPECT_TRUE(controller.ids().isEmpty());
}

TEST(DatasourceController, HasAsManyRecordsAsItsLongestSource)
{
    Controller controller;
    EXPECT_EQ(controller.recordCount(), 1);
    const int list = create(controller, TextList, u"TextList"_s, QStringList{u"a"_s, u"b"_s});
    const int numbers = create(controller, Sequence, u"End"_s, 4);
    EXPECT_EQ(controller.recordCount(), 5);
    EXPECT_EQ(controller.recordText(numbers, 4), u"4"_s);
    EXPECT_EQ(controller.recordText(list, 4), u"a"_s);
}

TEST(DatasourceController, GivesBackWhatItHolds)
{
    Controller controller;
    create(controller, Sequence, u"Prefix"_s, u"No. "_s);
    create(controller, System, u"DateFormat"_s, u"yyyy"_s);
    create(controller, TextList, u"TextList"_s, QStringList{QString(), QString()});
    const QList<SourceValues> values = controller.values();
    ASSERT_EQ(values.size(), 3);

    Controller copy;
    ASSERT_TRUE(copy.setValues(values));
    EXPECT_EQ(copy.values(), values);
    EXPECT_EQ(copy.ids(), controller.ids());
    EXPECT_FALSE(copy.ids().contains(copy.createDatasource(System)) && copy.ids().size() == 3)
        << "an identifier is not used again";
}

TEST(DatasourceController, RefusesValuesThatDoNotFitTogether)
{
    Controller controller;
    ASSERT_TRUE(controller.setValues({{5, Sequence, {}, {}}}));
    EXPECT_FALSE(controller.setValues({{0, Sequence, {}, {}}}));
    EXPECT_FALSE(controller.setValues({{1, u"Unknown"_s, {}, {}}}));
    EXPECT_FALSE(controller.setValues({{1, Sequence, {}, {}}, {1, System, {}, {}}}));
    EXPECT_EQ(controller.ids(), QList<int>{5}) << "a refusal changes nothing";
    EXPECT_EQ(controller.createDatasource(System), 6);
}
