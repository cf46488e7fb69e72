// The items of a label, as `labelport inspect` lists them.

#include "migration/losses/label_facts.h"

#include "host/items/rich_text_item.h"
#include "workbench/import/label_import.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(LabelFacts, ListWhatABoundItemShows)
{
    workbench::ImportResult result;
    result.canvas = std::make_unique<workbench::Canvas>();
    result.datasources = std::make_unique<workbench::datasources::DatasourceController>();
    const int id = result.datasources->createDatasource(u"SequenceDatasource"_s);
    result.datasources->getDatasource(id)->setDatasourceProperty(u"Prefix"_s, u"No. "_s);
    result.datasources->getDatasource(id)->setDatasourceProperty(u"Start"_s, 7);
    result.datasources->getDatasource(id)->setDatasourceProperty(u"End"_s, 9);
    for (const int source : {id, id + 1}) {
        Item* const item = result.canvas->getClassFactory()->create(KestTypes::RichText);
        result.canvas->importItem(item);
        auto* const text = dynamic_cast<RichTextItem*>(item);
        ASSERT_NE(text, nullptr);
        text->setText(u"stored"_s);
        text->setDatasourceId(source);
    }
    const QList<migration::ItemReport> items = migration::itemListOf(result);
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(items[0].content, u"No. 7"_s);
    EXPECT_EQ(items[1].content, u"stored"_s) << "a source that is not there";
}
