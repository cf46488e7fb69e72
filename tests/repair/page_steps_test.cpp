// What happens to the page as a whole: pages, groups, master pages, order.

#include "tests/repair/documents.h"

#include "repair/master_objects.h"
#include "repair/page_steps.h"
#include "repair/transform.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace repair;

TEST(PageSteps, TakeThePages)
{
    constexpr qint64 Bytes = 1 << 20;
    Document document(
        parseTree(drawingStyles(), Bytes),
        parseTree("<office:document-content><office:body><office:drawing>"
                  "<draw:page draw:name=\"1\"/><draw:page draw:name=\"2\"/><draw:page/>"
                  "</office:drawing></office:body></office:document-content>",
                  Bytes),
        {});
    Node::Children pages = takePages(document);
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_TRUE(document.body()->children.empty());
    const Document second = document.withPage(std::move(pages[1]), 2);
    EXPECT_EQ(second.pageNumber, 2);
    EXPECT_EQ(second.body()->children.size(), 1U);
    EXPECT_EQ(second.page()->attribute(u"draw:name"), "2"_L1);
    EXPECT_EQ(document.page(), nullptr);
}

TEST(PageSteps, DissolveGroupsInTheirOrder)
{
    Document document = drawing("<draw:rect/><draw:g><draw:circle/><draw:g><draw:line/></draw:g>"
                                "<draw:a><draw:ellipse/></draw:a></draw:g><draw:frame/>");
    EXPECT_EQ(dissolveGroups(document), 1);
    EXPECT_EQ(tags(document), "draw:rect draw:circle draw:line draw:ellipse draw:frame"_L1);
}

TEST(PageSteps, ApplyTheTransformationsOfGroups)
{
    Document document = drawing(
        "<draw:g draw:transform=\"translate (1in 0in)\"><draw:g draw:transform=\"scale (2)\">"
        "<draw:rect svg:width=\"1in\" svg:height=\"1in\" svg:x=\"1in\" svg:y=\"2in\"/>"
        "<draw:line svg:x1=\"0in\" svg:y1=\"0in\" svg:x2=\"1in\" "
        "svg:y2=\"1in\"/></draw:g></draw:g>");
    EXPECT_EQ(dissolveGroups(document), 1);
    const auto placed = toRotatedBox(placementOf(object(document, u"draw:rect"_s)));
    ASSERT_TRUE(placed);
    EXPECT_NEAR(placed->box.x(), 3 * 72.0, 0.01);
    EXPECT_NEAR(placed->box.y(), 4 * 72.0, 0.01);
    EXPECT_NEAR(placed->box.width(), 2 * 72.0, 0.01);
    EXPECT_EQ(object(document, u"draw:line"_s).attribute(u"svg:x1"), "1.000000in"_L1);
    EXPECT_EQ(object(document, u"draw:line"_s).attribute(u"svg:x2"), "3.000000in"_L1);
}

TEST(PageSteps, BringMasterObjectsOntoThePageBelowItsOwn)
{
    constexpr qint64 Bytes = 1 << 20;
    Document document(
        parseTree(drawingStyles({},
                                "<style:style style:name=\"gr1\" style:family=\"graphic\">"
                                "<style:graphic-properties draw:fill-color=\"#0000ff\"/>"
                                "</style:style>",
                                "<draw:circle draw:style-name=\"gr1\"/>"),
                  Bytes),
        parseTree(drawingContent("<draw:rect draw:style-name=\"gr1\"/>",
                                 "<style:style style:name=\"gr1\" style:family=\"graphic\">"
                                 "<style:graphic-properties draw:fill-color=\"#ff0000\"/>"
                                 "</style:style>"),
                  Bytes),
        {});
    EXPECT_EQ(addMasterObjects(document), 1);
    EXPECT_EQ(tags(document), "draw:circle draw:rect"_L1);
    const auto color = [&document](const QString& tag) {
        return graphicOf(document, object(document, tag)).value(u"draw:fill-color"_s);
    };
    EXPECT_EQ(color(u"draw:circle"_s), "#0000ff"_L1);
    EXPECT_EQ(color(u"draw:rect"_s), "#ff0000"_L1);
}

TEST(PageSteps, UseTheLayoutOfTheMasterPage)
{
    constexpr qint64 Bytes = 1 << 20;
    const QByteArray styles =
        "<office:document-styles><office:automatic-styles><style:page-layout style:name=\"X\"/>"
        "<style:page-layout style:name=\"L\"/></office:automatic-styles><office:master-styles>"
        "<style:master-page style:name=\"M\" style:page-layout-name=\"L\"/></office:master-styles>"
        "</office:document-styles>";
    Document document(parseTree(styles, Bytes), parseTree(drawingContent({}), Bytes), {});
    EXPECT_EQ(usePageLayout(document), 1);
    const Node* const first =
        document.styles->child(u"office:automatic-styles")->child(u"style:page-layout");
    EXPECT_EQ(first->attribute(u"style:name"), "L"_L1);
    EXPECT_EQ(usePageLayout(document), 0);
}

TEST(PageSteps, WriteTheOrder)
{
    Document document = drawing("<draw:rect draw:z-index=\"5\"/><draw:line/>"
                                "<draw:circle draw:z-index=\"2\"/>");
    EXPECT_EQ(writeOrder(document), 1);
    EXPECT_EQ(tags(document), "draw:circle draw:rect draw:line"_L1);
    EXPECT_EQ(object(document, u"draw:circle"_s).attribute(u"draw:z-index"), "1"_L1);
    EXPECT_EQ(object(document, u"draw:line"_s).attribute(u"draw:z-index"), "3"_L1);
}
