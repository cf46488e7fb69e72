#pragma once

#include "tavrel/datasource_binder.h"
#include "tavrel/item_building.h"
#include "tests/support/test_host/test_host.h"

#include <QGraphicsItem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tavrel_test {

inline constexpr tavrel::Resolution Printer{300.0, 150.0};

/// A host with a yellow canvas and a red pen, and a header whose values are all different.
class Builders : public testing::Test
{
protected:
    Builders()
    {
        header.movable = true;
        header.x = 100.0;
        header.y = 50.0;
        header.zValue = 1003.0;
        header.rotation = 30.0;
        header.width = 60.0;
        header.height = 20.0;
        host.behavior().recordsPlacement = true;
        host.behavior().itemSize = {33.0, 11.0};
        host.canvas()->setCanvasBackgroundColor(Qt::yellow);
        host.canvas()->setCanvasDefaultPenColor(Qt::red);
        host.forgetCalls();
    }
    ~Builders() override
    {
        EXPECT_EQ(host.livingItems(), host.itemCount()) << "the canvas owns every item";
    }

    [[nodiscard]] tavrel::HostCanvas canvas()
    {
        return {host.canvas(), host.canvas()->getClassFactory()};
    }
    [[nodiscard]] tavrel::DatasourceBinder binder() { return {host.datasources(), sequence}; }

    void expectPlaced(const QPointF& position = {100.0, 50.0})
    {
        ASSERT_EQ(host.itemCount(), 1);
        const QGraphicsItem* const item = host.item(1);
        EXPECT_EQ(item->zValue(), 1003.0);
        EXPECT_EQ(item->pos(), position);
        EXPECT_TRUE(item->flags().testFlag(QGraphicsItem::ItemIsMovable));
    }

    TestHost host;
    tavrel::SequenceSettings sequence;
    tavrel::ItemHeader header;
};

} // namespace tavrel_test
