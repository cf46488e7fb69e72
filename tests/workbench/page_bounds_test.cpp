// Limits of a page's picture or document: the largest accepted and the first rejected size.

#include "workbench/canvas/canvas.h"
#include "workbench/rendering/page_export.h"
#include "workbench/rendering/page_image.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using namespace workbench;

namespace {

void setPage(Canvas& canvas, double width, double height)
{
    PageValues page;
    page.size = {width, height};
    canvas.setPage(page);
}

// At 72 dots per inch a point is a pixel.
bool isPainted(double width, double height)
{
    Canvas canvas;
    setPage(canvas, width, height);
    return !renderPage(canvas, 72.0).image.isNull();
}

TEST(PageBounds, MeasureAPicturesSide)
{
    EXPECT_TRUE(isPainted(MaximumImageSide, 1));
    EXPECT_TRUE(isPainted(1, MaximumImageSide));
    EXPECT_FALSE(isPainted(MaximumImageSide + 1, 1));
    EXPECT_FALSE(isPainted(1, MaximumImageSide + 1));
}

TEST(PageBounds, MeasureAPicturesArea)
{
    static_assert(MaximumImagePixels == 15'000 * 10'000);
    EXPECT_FALSE(isPainted(15'001, 10'000));
}

TEST(PageBounds, MeasureADocumentsPage)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"a.pdf"_s);
    const auto onePage = [](qint64) { return true; };
    Canvas canvas;
    setPage(canvas, MaximumPdfSide, 10);
    EXPECT_EQ(writePdf(canvas, file, u"a"_s, 1, onePage), QString());
    EXPECT_TRUE(QFileInfo::exists(file));
    setPage(canvas, 10, MaximumPdfSide + 1);
    EXPECT_FALSE(writePdf(canvas, file, u"a"_s, 1, onePage).isEmpty());
}

} // namespace
