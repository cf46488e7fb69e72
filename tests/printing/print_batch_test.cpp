// Labels of different sizes in one command: their documents and papers.

#include "printing/print_batch.h"
#include "printing/print_queue.h"
#include "printing/sheet_presets.h"
#include "workbench/canvas/canvas.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {
using namespace Qt::StringLiterals;
using namespace printing;

class Batch : public ::testing::Test
{
protected:
    BatchLabel labelOf(double width, double height, qint64 records = 1)
    {
        return {u"label"_s, QSizeF(width, height) * 72.0 / 25.4, records,
                [this](qint64) { return &canvas; }};
    }

    static PrintBatch onSheet(const QString& name, int firstPosition = 0)
    {
        return PrintBatch([name](const QSizeF& label) { return sheetOfName(name, label); },
                          {{}, firstPosition, 1, false});
    }

    static QStringList mediaOf(const PrintBatch& batch)
    {
        const QTemporaryDir folder;
        QList<PrintDocument> documents;
        EXPECT_EQ(batch.write(folder.path(), documents), QString());
        QStringList media;
        for (const PrintDocument& document : documents) {
            media.append(document.media);
        }
        return media;
    }

    workbench::Canvas canvas;
};

TEST_F(Batch, HasADocumentForEachPaper)
{
    PrintBatch batch = onSheet({});
    for (const double width : {50.0, 50.0, 63.5, 50.0}) {
        EXPECT_EQ(batch.add(labelOf(width, 30.0, 2)), QString());
    }
    EXPECT_EQ(batch.pages(), 8);
    EXPECT_EQ(batch.labels(), 8);
    EXPECT_NEAR(batch.pageSize(4).width(), 180.0, 1e-9); // 63.5 mm
    EXPECT_EQ(mediaOf(batch),
              (QStringList{u"Custom.50x30mm"_s, u"Custom.63.5x30mm"_s, u"Custom.50x30mm"_s}));
}

TEST_F(Batch, SharesSheetsAmongLabelsOfAllSizes)
{
    PrintBatch batch = onSheet(u"L7160"_s, 20);
    EXPECT_EQ(batch.add(labelOf(63.5, 38.1, 12)), QString());
    EXPECT_EQ(batch.add(labelOf(50.0, 30.0, 10)), QString());
    EXPECT_EQ(batch.pages(), 2);
    EXPECT_EQ(mediaOf(batch), QStringList{u"A4"_s});
}

TEST_F(Batch, UsesTheFirstFreePositionOnce)
{
    PrintBatch batch = onSheet(u"A4"_s, 5);
    EXPECT_EQ(batch.add(labelOf(63.5, 38.1)), QString());
    EXPECT_EQ(batch.add(labelOf(180.0, 250.0)), QString()); // one on a sheet
    EXPECT_EQ(batch.pages(), 2);
}

TEST_F(Batch, RefusesALabelAndKeepsTheOthers)
{
    PrintBatch batch = onSheet(u"L7160"_s);
    EXPECT_EQ(batch.add(labelOf(50.0, 30.0)), QString());
    EXPECT_NE(batch.add(labelOf(90.0, 30.0)), QString());
    EXPECT_NE(batch.add(labelOf(50.0, 30.0, MaximumLabels)), QString());
    EXPECT_EQ(batch.pages(), 1);
}

TEST(PrintQueue, NamesPapersInEveryLocale)
{
    EXPECT_EQ(customMedia({63.5, 38.1}), u"Custom.63.5x38.1mm"_s);
    EXPECT_EQ(customMedia({100.0, 50.004}), u"Custom.100x50mm"_s);
}

} // namespace
