#pragma once

#include "recorder/recording_host.h"

#include "host/class_factory.h"
#include "host/items/item.h"

#include <QBuffer>
#include <QStringList>

#include <gtest/gtest.h>

#include <memory>

/// A recording host, and its trace as lines.
class RecorderTest : public ::testing::Test
{
protected:
    /// The lines that were written since the last call.
    [[nodiscard]] QStringList newLines()
    {
        QStringList lines = QString::fromUtf8(m_out.data()).split(u'\n');
        m_out.buffer().clear();
        m_out.seek(0);
        EXPECT_EQ(lines.takeLast(), QString()) << "a line without an end";
        return lines;
    }
    /// The only line since the last call.
    [[nodiscard]] QString newLine()
    {
        const QStringList lines = newLines();
        EXPECT_EQ(lines.size(), 1);
        return lines.value(0);
    }

    [[nodiscard]] TalCanvasModel& canvas() { return *m_host->canvasModel(); }
    [[nodiscard]] Item* create(KestTypes::ShapeType type)
    {
        return canvas().getClassFactory()->create(type);
    }
    /// A new item, whose creation is already removed from the trace.
    [[nodiscard]] std::unique_ptr<Item> make(KestTypes::ShapeType type)
    {
        std::unique_ptr<Item> item(create(type));
        (void)newLines();
        return item;
    }

    QBuffer m_out;
    std::unique_ptr<recorder::RecordingHost> m_host = open();

private:
    [[nodiscard]] std::unique_ptr<recorder::RecordingHost> open()
    {
        EXPECT_TRUE(m_out.open(QIODevice::WriteOnly));
        return std::make_unique<recorder::RecordingHost>(m_out);
    }
};
