// Labels on pages: their places, copies, rotation and crop marks.

#include "printing/print_document.h"
#include "printing/sheet_presets.h"
#include "workbench/canvas/canvas.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {
using namespace Qt::StringLiterals;
using namespace printing;

constexpr double PointsPerMillimeter = 72.0 / 25.4;

/// Labels that are filled with a color of their number.
class PrintDocument : public ::testing::Test
{
protected:
    static QColor colorOf(qint64 number) { return QColor(10 + static_cast<int>(number), 90, 200); }

    void setLabelSize(double width, double height)
    {
        workbench::PageValues page;
        page.size = QSizeF(width, height) * PointsPerMillimeter;
        canvas.setPage(page);
    }

    LabelSeries series(qint64 count)
    {
        return {count, canvas.page().size, [this](qint64 number) {
                    shown.append(number);
                    canvas.setCanvasBackgroundColor(colorOf(number));
                    return number == stopAt ? nullptr : &canvas;
                }};
    }

    /// A page with ten pixels to the millimeter.
    QImage page(const PrintLayout& layout, qint64 count, qint64 number)
    {
        const QSizeF paper = layout.sheet->paperSize;
        QImage image((paper * 10.0).toSize(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(10.0 / PointsPerMillimeter, 10.0 / PointsPerMillimeter);
        EXPECT_TRUE(paintPrintPage(painter, layout, series(count), number));
        return image;
    }

    /// The number of the label at a position; -1 if there is none.
    static qint64 labelAt(const QImage& image, const Sheet& sheet, int position)
    {
        const QRgb pixel = image.pixel((cellAt(sheet, position).center() * 10.0).toPoint());
        return pixel == qRgb(255, 255, 255) ? -1 : qRed(pixel) - 10;
    }

    workbench::Canvas canvas;
    QList<qint64> shown;
    qint64 stopAt = -1;
    const Sheet grid{{u"own"_s}, {}, {100, 100}, 2, 2, {30, 20}, {15, 20}, {35, 25}};
};

TEST_F(PrintDocument, FillsTheSheetFromTheFirstFreePosition)
{
    setLabelSize(30, 20);
    const PrintLayout layout{grid, 3, 1, false};
    ASSERT_EQ(pagesFor(layout, 4), 2);
    const QImage first = page(layout, 4, 0);
    const QImage second = page(layout, 4, 1);
    QList<qint64> labels;
    for (const QImage& image : {first, second}) {
        for (int position = 0; position < 4; ++position) {
            labels.append(labelAt(image, grid, position));
        }
    }
    EXPECT_EQ(labels, (QList<qint64>{-1, -1, -1, 0, 1, 2, 3, -1}));
}

TEST_F(PrintDocument, RepeatsEachLabelForItsCopies)
{
    setLabelSize(30, 20);
    const PrintLayout layout{grid, 1, 3, false};
    ASSERT_EQ(pagesFor(layout, 2), 2);
    const QImage first = page(layout, 2, 0);
    EXPECT_EQ(labelAt(first, grid, 0), -1);
    EXPECT_EQ(labelAt(first, grid, 1), 0);
    EXPECT_EQ(labelAt(first, grid, 3), 0);
    EXPECT_EQ(shown, (QList<qint64>{0, 0, 0})) << "printing can be stopped before each copy";
    const QImage second = page(layout, 2, 1);
    EXPECT_EQ(labelAt(second, grid, 2), 1);
    EXPECT_EQ(labelAt(second, grid, 3), -1);
}

TEST_F(PrintDocument, KeepsTheSizeOfLabelsAndCentersThem)
{
    setLabelSize(20, 10);
    const QImage image = page({grid, 0, 1, false}, 1, 0);
    const QRectF cell = cellAt(grid, 0);
    const auto isPainted = [&image](const QPointF& point) {
        return image.pixel((point * 10.0).toPoint()) != qRgb(255, 255, 255);
    };
    EXPECT_TRUE(isPainted(cell.center() + QPointF(9.8, 4.8)));
    EXPECT_FALSE(isPainted(cell.center() + QPointF(10.2, 4.8)));
    EXPECT_FALSE(isPainted(cell.center() - QPointF(9.8, 5.2)));
}

TEST_F(PrintDocument, CutsWhatExceedsTheCell)
{
    setLabelSize(31, 21);
    const QImage image = page({grid, 0, 1, false}, 1, 0);
    const QRectF cell = cellAt(grid, 0);
    EXPECT_EQ(labelAt(image, grid, 0), 0);
    EXPECT_EQ(image.pixel(((cell.bottomRight() + QPointF(0.3, 0.3)) * 10.0).toPoint()),
              qRgb(255, 255, 255));
}

TEST_F(PrintDocument, TurnsLabelsThatFitOnlyRotated)
{
    setLabelSize(20, 30);
    const QImage image = page({grid, 0, 1, false}, 1, 0);
    const QRectF cell = cellAt(grid, 0);
    for (const QPointF corner : {QPointF(14.8, 9.8), QPointF(-14.8, -9.8)}) {
        EXPECT_NE(image.pixel(((cell.center() + corner) * 10.0).toPoint()), qRgb(255, 255, 255));
    }
}

TEST_F(PrintDocument, HasCropMarksOnRequest)
{
    setLabelSize(30, 20);
    const QPoint onMark(150, 160); // left edge of the first label, 4 mm above it
    const auto hasMark = [&](bool cropMarks) {
        const QImage image = page({grid, 0, 1, cropMarks}, 1, 0);
        return qGray(image.pixel(onMark)) < 200 || qGray(image.pixel(onMark - QPoint(1, 0))) < 200;
    };
    EXPECT_TRUE(hasMark(true));
    EXPECT_FALSE(hasMark(false));
}

TEST_F(PrintDocument, WithoutASheetHasPagesOfTheLabelsSize)
{
    setLabelSize(60, 40);
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"out.pdf"_s);
    EXPECT_EQ(writePrintDocument(file, u"a"_s, {std::nullopt, 0, 2, false}, series(3)), QString());
    QFile written(file);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    const QByteArray bytes = written.readAll();
    EXPECT_EQ(bytes.count("/MediaBox [0 0.614 170.0787 114"), 6);
}

TEST_F(PrintDocument, WritesNothingIfStopped)
{
    setLabelSize(30, 20);
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"out.pdf"_s);
    stopAt = 5;
    EXPECT_EQ(writePrintDocument(file, u"a"_s, {grid, 0, 1, false}, series(10)), QString());
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(PrintDocument, RefusesPositionsThatTheSheetDoesNotHave)
{
    EXPECT_EQ(problemOf({grid, 3, 1, false}, 1), QString());
    EXPECT_EQ(problemOf({grid, 4, 1, false}, 1),
              u"Sheet \"own\" has no position 5; its positions are 1 to 4."_s);
}

TEST_F(PrintDocument, HasALimitedNumberOfLabels)
{
    EXPECT_EQ(problemOf({grid, 0, MaximumCopies, false}, MaximumLabels / MaximumCopies), QString());
    EXPECT_NE(problemOf({grid, 0, MaximumCopies, false}, MaximumLabels / MaximumCopies + 1),
              QString());
}

} // namespace
