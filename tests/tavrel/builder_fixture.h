#pragma once

#include "tavrel/datasource_binder.h"
#include "tavrel/item_building.h"
#include "tests/tavrel/fake_host.h"
#include "tests/tavrel/fake_services.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tavrel_test {

inline constexpr tavrel::Resolution Printer{300.0, 150.0};

inline QStringList lines(std::initializer_list<const char*> texts)
{
    QStringList all;
    for (const char* text : texts) {
        all.append(QString::fromUtf8(text));
    }
    return all;
}

/// A host that records its calls, and a header whose values are all different.
class Builders : public testing::Test
{
protected:
    Builders()
    {
        FakeServices::reset();
        header.movable = true;
        header.x = 100.0;
        header.y = 50.0;
        header.zValue = 1003.0;
        header.rotation = 30.0;
        header.width = 60.0;
        header.height = 20.0;
        fake.canvas.setCanvasBackgroundColor(Qt::yellow);
        fake.canvas.setCanvasDefaultPenColor(Qt::red);
        fake.calls.clear();
    }
    ~Builders() override
    {
        fake.canvas.clear();
        EXPECT_EQ(fake.calls.itemsAlive, 0) << "every item has one owner";
    }

    [[nodiscard]] tavrel::HostCanvas host() { return {&fake.canvas, &fake.canvas.factory}; }
    [[nodiscard]] tavrel::DatasourceBinder binder() { return {&fake.datasources, sequence}; }

    void expectPlaced(const QPointF& position = {100.0, 50.0})
    {
        ASSERT_EQ(fake.canvas.itemCount(), 1U);
        const QGraphicsItem* const item = fake.canvas.item(0);
        EXPECT_EQ(item->zValue(), 1003.0);
        EXPECT_EQ(item->pos(), position);
        EXPECT_TRUE(item->flags().testFlag(QGraphicsItem::ItemIsMovable));
    }

    FakeHost fake;
    tavrel::SequenceSettings sequence;
    tavrel::ItemHeader header;
};

} // namespace tavrel_test
