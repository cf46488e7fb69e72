#include "exporting/label_walk.h"

#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

using namespace workbench;

ItemValues itemAt(KestTypes::ShapeType type, const QPointF& position, const QSizeF& size)
{
    ItemValues values;
    values.type = type;
    values.box.size = size;
    values.placement.position = position;
    return values;
}

class LabelWalk : public testing::Test
{
protected:
    QList<exporting::WalkedItem> walk(qint64 record = 0)
    {
        canvas.showRecord(record, [this](int id, qint64 wanted, const QStringList& fields) {
            return sources.recordText(id, wanted, fields);
        });
        return exporting::walkLabel(canvas, sources, record);
    }

    Canvas canvas;
    datasources::DatasourceController sources;
};

TEST_F(LabelWalk, GoesFromBottomToTopAndSkipsItemsOffThePage)
{
    ItemValues top = itemAt(KestTypes::Ellipse, {10, 10}, {20, 20});
    top.placement.z = 2;
    canvas.addItem(top);
    ItemValues outside = itemAt(KestTypes::Diamond, {5000, 10}, {20, 20});
    outside.placement.z = 1;
    canvas.addItem(outside);
    canvas.addItem(itemAt(KestTypes::Rectangle, {10, 10}, {20, 20}));

    const auto items = walk();
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(items.at(0).values.type, KestTypes::Rectangle);
    EXPECT_EQ(items.at(0).position, 1);
    EXPECT_EQ(items.at(1).values.type, KestTypes::Ellipse);
    EXPECT_EQ(items.at(1).position, 3);
    EXPECT_EQ(items.at(1).item, canvas.items().at(0));
}

TEST_F(LabelWalk, MapsTheBoxToThePage)
{
    ItemValues values = itemAt(KestTypes::Rectangle, {10, 20}, {40, 20});
    values.box.rotation = 90;
    canvas.addItem(values);
    values.box.rotation = 0;
    values.box.flipHorizontal = true;
    canvas.addItem(values);

    const auto items = walk();
    ASSERT_EQ(items.size(), 2);
    // About the center, (30, 30): the upper left corner moves to the upper right.
    const QPointF rotated = items.at(0).toPage.map(QPointF(0, 0));
    EXPECT_NEAR(rotated.x(), 40, 1e-9);
    EXPECT_NEAR(rotated.y(), 10, 1e-9);
    EXPECT_EQ(items.at(1).toPage.map(QPointF(0, 0)), QPointF(50, 20));
}

TEST_F(LabelWalk, ShowsTheContentOfTheRecord)
{
    const int id = sources.createDatasource(u"SequenceDatasource"_s);
    sources.getDatasource(id)->setDatasourceProperty(u"Start"_s, 7);
    sources.getDatasource(id)->setDatasourceProperty(u"End"_s, 9);
    ItemValues text = itemAt(KestTypes::RichText, {0, 0}, {100, 20});
    text.text = TextValues{u"own"_s, {}};
    canvas.addItem(text);
    text.text = TextValues{{}, u"<b>own</b>"_s};
    text.datasource = DatasourceValues{id, {}};
    canvas.addItem(text);
    ItemValues barcode = itemAt(KestTypes::Barcode, {0, 0}, {100, 20});
    barcode.barcode = BarcodeValues();
    barcode.datasource = DatasourceValues{id, {}};
    canvas.addItem(barcode);

    const auto items = walk(1);
    ASSERT_EQ(items.size(), 3);
    EXPECT_FALSE(items.at(0).isBound);
    EXPECT_EQ(items.at(0).values.text->text, u"own"_s);
    EXPECT_TRUE(items.at(1).isBound);
    EXPECT_EQ(items.at(1).values.text, (TextValues{u"8"_s, {}}));
    EXPECT_EQ(items.at(2).values.barcode->content, u"8"_s);
}

TEST_F(LabelWalk, KeepsTheContentOfAnItemWithoutItsSource)
{
    ItemValues text = itemAt(KestTypes::SimpleText, {0, 0}, {100, 20});
    text.text = TextValues{u"own"_s, {}};
    text.datasource = DatasourceValues{99, {}};
    canvas.addItem(text);

    const auto items = walk();
    ASSERT_EQ(items.size(), 1);
    EXPECT_FALSE(items.at(0).isBound);
    EXPECT_EQ(items.at(0).values.text->text, u"own"_s);
}

} // namespace
