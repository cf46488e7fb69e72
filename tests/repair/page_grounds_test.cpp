// Colors, pictures and borders of the pages of texts.

#include "tests/repair/documents.h"

#include "host/items/rich_text_item.h"
#include "repair/repaired_import.h"

#include <QBuffer>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double GroundInch = 72.0;

/// What a page of four by five inches with margins of half an inch shows.
struct Page
{
    QList<workbench::ItemValues> rectangles; ///< without those of rows of text
    QList<workbench::ItemValues> symbols;
    QList<workbench::ItemValues> texts;
};

/// @param layout  further attributes and children of its properties
/// @param margins header-style and footer-style
Page pageWith(const QByteArray& layout, const QByteArray& margins = {})
{
    const QTemporaryDir folder;
    QByteArray styles = drawingStyles({}, {}, "<style:header><text:p>head</text:p></style:header>");
    const qsizetype begin = styles.indexOf("<style:page-layout-properties");
    const qsizetype end = styles.indexOf("/>", begin) + 2;
    styles.replace(begin, end - begin,
                   "<style:page-layout-properties fo:page-width=\"4in\" fo:page-height=\"5in\" "
                   "fo:margin=\"0.5in\" " +
                       layout + "</style:page-layout-properties>" + margins);
    QImage picture(2, 2, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QByteArray png;
    QBuffer buffer(&png);
    EXPECT_TRUE(picture.save(&buffer, "PNG"));
    const repair::RepairedImport import = repair::importRepaired(
        writePackage(folder.path(),
                     "<office:document-content><office:body><office:text><text:p>article</text:p>"
                     "</office:text></office:body></office:document-content>",
                     styles, {{u"Pictures/p.png"_s, png}}));
    EXPECT_TRUE(import.isRepaired());
    Page page;
    for (const workbench::CanvasItem* item : import.result.canvas->items()) {
        const workbench::ItemValues values = item->values();
        const KestTypes::ShapeType type = item->shapeType();
        if (type == KestTypes::RichText) {
            page.texts.append(values);
        } else if (values.fill && values.fill->style == Qt::SolidPattern) {
            page.rectangles.append(values);
        } else if (!values.fill) {
            page.symbols.append(values);
        }
    }
    return page;
}

QRectF boxOf(const workbench::ItemValues& item)
{
    return {item.placement.position, item.box.size};
}

void expectNear(const QRectF& box, const QRectF& wanted)
{
    EXPECT_NEAR(box.left(), wanted.left(), 0.1);
    EXPECT_NEAR(box.top(), wanted.top(), 0.1);
    EXPECT_NEAR(box.right(), wanted.right(), 0.1);
    EXPECT_NEAR(box.bottom(), wanted.bottom(), 0.1);
}

const QRectF PageFrame(0.5 * GroundInch, 0.5 * GroundInch, 3.0 * GroundInch, 4.0 * GroundInch);

} // namespace

TEST(PageGrounds, FillThePageWithinItsMargins)
{
    const Page page = pageWith("fo:background-color=\"#ddeeff\">");
    ASSERT_EQ(page.rectangles.size(), 1);
    EXPECT_EQ(page.rectangles[0].fill->color.name(), "#ddeeff"_L1);
    expectNear(boxOf(page.rectangles[0]), PageFrame);
    EXPECT_TRUE(pageWith("fo:background-color=\"transparent\">").rectangles.isEmpty());
}

TEST(PageGrounds, HaveABorderOnEachSideThatStatesOne)
{
    EXPECT_EQ(pageWith("fo:border=\"1pt solid #112233\">").rectangles.size(), 4);
    EXPECT_TRUE(pageWith("fo:border=\"none\">").rectangles.isEmpty());
    const Page page = pageWith("fo:border=\"none\" fo:border-bottom=\"2pt solid #112233\">");
    ASSERT_EQ(page.rectangles.size(), 1);
    EXPECT_EQ(page.rectangles[0].fill->color.name(), "#112233"_L1);
    expectNear(boxOf(page.rectangles[0]), QRectF(PageFrame.left() - 1.0, PageFrame.bottom() - 1.0,
                                                 PageFrame.width() + 2.0, 2.0));
}

TEST(PageGrounds, KeepTextsAwayFromTheirBorders)
{
    const Page page = pageWith("fo:padding=\"0.25in\" fo:border-left=\"0.1in solid #000000\">");
    ASSERT_EQ(page.texts.size(), 2);
    for (const workbench::ItemValues& text : page.texts) {
        EXPECT_NEAR(text.placement.position.x(), 0.85 * GroundInch, 0.1);
    }
    const Page left = pageWith("fo:padding-left=\"0.25in\">");
    EXPECT_NEAR(left.texts[0].placement.position.x(), 0.75 * GroundInch, 0.1);
}

// The height of a header includes the distance of the text, its ground does not.
TEST(PageGrounds, FillHeaders)
{
    const Page page = pageWith(
        ">", "<style:header-style><style:header-footer-properties fo:min-height=\"1in\" "
             "fo:margin-bottom=\"0.4in\" fo:background-color=\"#ddffdd\"/></style:header-style>"
             "<style:footer-style><style:header-footer-properties fo:min-height=\"1in\" "
             "fo:background-color=\"#ffdddd\"/></style:footer-style>");
    // The page has no footer, so its ground is not drawn.
    ASSERT_EQ(page.rectangles.size(), 1);
    EXPECT_EQ(page.rectangles[0].fill->color.name(), "#ddffdd"_L1);
    expectNear(boxOf(page.rectangles[0]),
               QRectF(PageFrame.left(), PageFrame.top(), PageFrame.width(), 0.6 * GroundInch));
    double lowest = 0.0;
    for (const workbench::ItemValues& text : page.texts) {
        lowest = std::max(lowest, text.placement.position.y());
    }
    EXPECT_NEAR(lowest, 1.5 * GroundInch, 0.1);
}

TEST(PageGrounds, ShowPictures)
{
    const QByteArray image = "><style:background-image xlink:href=\"Pictures/p.png\"/>";
    const Page repeated = pageWith(image);
    ASSERT_EQ(repeated.symbols.size(), 1);
    expectNear(boxOf(repeated.symbols[0]), PageFrame);
    EXPECT_TRUE(pageWith("><style:background-image/>").symbols.isEmpty());
    // Newer documents state the fill as that of a shape.
    const Page gradient = pageWith("draw:fill=\"gradient\" draw:fill-gradient-name=\"none\">");
    ASSERT_EQ(gradient.symbols.size(), 1);
    expectNear(boxOf(gradient.symbols[0]), PageFrame);
}
