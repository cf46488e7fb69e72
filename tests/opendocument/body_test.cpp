// Which elements of a body become items, and of which type.

#include "documents.h"
#include "fake_host.h"
#include "tests/support/captured_log.h"

#include "opendocument/open_office_reader.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Body : public testing::Test
{
protected:
    QStringList typesOf(const QByteArray& content)
    {
        Package package(stylesXml(), content);
        EXPECT_TRUE(reader.importLabelFromFile(package.write()));
        EXPECT_EQ(host.journal().last(), u"canvas.completeCanvasLoading"_s);
        return host.createdTypes();
    }

    FakeHost host;
    OpenOfficeReader reader{&host, nullptr};
};

QByteArray customShape(const QByteArray& type)
{
    return "<draw:custom-shape><text:p/><draw:enhanced-geometry draw:type=\"" + type +
           "\"/></draw:custom-shape>";
}

} // namespace

TEST_F(Body, DrawingElementsBecomeTheirItems)
{
    EXPECT_EQ(typesOf(drawingXml("<draw:rect/><draw:rect draw:corner-radius=\"1in\"/><draw:circle/>"
                                 "<draw:ellipse/><draw:line/><draw:measure/><draw:custom-shape/>"
                                 "<draw:frame/><mso-spt100/>")),
              (QStringList{u"Rectangle"_s, u"RoundedRectangle"_s, u"Ellipse"_s, u"Ellipse"_s,
                           u"Line"_s, u"Line"_s, u"Rectangle"_s, u"Rectangle"_s, u"Pie"_s}));
}

TEST_F(Body, OtherDrawingElementsAreSkipped)
{
    EXPECT_EQ(typesOf(drawingXml("<draw:g><draw:rect/></draw:g><draw:path/><draw:polygon/>"
                                 "<text:p>x</text:p><draw:Rect/><!-- c -->text<draw:connector/>")),
              QStringList());
}

TEST_F(Body, CustomShapesGoByTheirType)
{
    const struct
    {
        QByteArray type;
        QString item;
    } rows[] = {
        {"right-triangle", u"RightTriangle"_s},
        {"isosceles-triangle", u"Triangle"_s},
        {"round-rectangle", u"RoundedRectangle"_s},
        {"ellipse", u"Ellipse"_s},
        {"circle", u"Ellipse"_s},
        {"mso-spt100", u"Pie"_s},
        {"pentagon", u"Pentagon"_s},
        {"diamond", u"Diamond"_s},
        {"hexagon", u"Hexagon"_s},
        {"octagon", u"Octagon"_s},
        {"star", u"Rectangle"_s},
        {"rectangle", u"Rectangle"_s},
        {"Hexagon", u"Rectangle"_s},
        {"", u"Rectangle"_s},
    };
    QByteArray shapes;
    QStringList items;
    for (const auto& row : rows) {
        shapes += customShape(row.type);
        items += row.item;
    }
    EXPECT_EQ(typesOf(drawingXml(shapes)), items);
}

TEST_F(Body, TheFirstGeometryOfACustomShapeCounts)
{
    EXPECT_EQ(typesOf(drawingXml("<draw:custom-shape><draw:enhanced-geometry/>"
                                 "<draw:enhanced-geometry draw:type=\"hexagon\"/>"
                                 "</draw:custom-shape>")),
              QStringList{u"Rectangle"_s});
}

TEST_F(Body, OnlyTheFirstPageOfADrawingIsRead)
{
    EXPECT_EQ(typesOf(contentXml("<office:drawing><draw:page><draw:rect/></draw:page>"
                                 "<draw:page><draw:ellipse/></draw:page></office:drawing>")),
              QStringList{u"Rectangle"_s});
}

TEST_F(Body, TheFirstElementOfADrawingIsItsPageWhateverItsName)
{
    EXPECT_EQ(typesOf(contentXml("<office:drawing><text:variable-decls><draw:line/>"
                                 "</text:variable-decls><draw:page><draw:rect/></draw:page>"
                                 "</office:drawing>")),
              QStringList{u"Line"_s});
}

TEST_F(Body, TextsHaveParagraphsHeadingsAndFrames)
{
    EXPECT_EQ(typesOf(textXml("<text:sequence-decls/><text:p>a</text:p><text:h>b</text:h>"
                              "<draw:frame/><text:list><text:p>no</text:p></text:list>"
                              "<draw:rect/><text:span>no</text:span>")),
              (QStringList{u"RichText"_s, u"RichText"_s, u"Rectangle"_s}));
}

TEST_F(Body, EmptyDocumentsHaveNoItems)
{
    EXPECT_EQ(typesOf(textXml("")), QStringList());
    EXPECT_EQ(typesOf(drawingXml("")), QStringList());
    EXPECT_EQ(typesOf(contentXml("<office:drawing/>")), QStringList());
}

TEST_F(Body, OtherKindsOfDocumentAreReportedAndStillCompleted)
{
    for (const QByteArray& content :
         {contentXml("<office:spreadsheet><draw:rect/></office:spreadsheet>"),
          contentXml("<office:presentation/><office:drawing><draw:page><draw:rect/></draw:page>"
                     "</office:drawing>"),
          contentXml(""), QByteArray("<other/>")}) {
        SCOPED_TRACE(content.toStdString());
        const CapturedLog log;
        EXPECT_EQ(typesOf(content), QStringList());
        ASSERT_EQ(log.records().size(), 1);
        EXPECT_EQ(log.records().first().level, Logger::Debug);
        EXPECT_EQ(log.records().first().source, u"open_office_reader"_s);
        EXPECT_EQ(log.records().first().function,
                  u"void OpenOfficeReader::readBody(const QDomElement&)"_s);
        EXPECT_EQ(log.records().first().message, u"Unsupported document type."_s);
    }
}

TEST_F(Body, ItemsThatTheHostDoesNotMakeAreLeftOut)
{
    const QByteArray shapes = "<draw:rect><text:p>x</text:p></draw:rect><draw:ellipse/>"
                              "<draw:line/>" +
                              customShape("hexagon");
    for (auto* wrong : {&host.refusedTypes, &host.confusedTypes}) {
        *wrong = {KestTypes::Rectangle, KestTypes::Line, KestTypes::Hexagon};
        const CapturedLog log;
        const int before = host.importedCount();
        Package package(stylesXml(), drawingXml(shapes));
        EXPECT_TRUE(reader.importLabelFromFile(package.write()));
        EXPECT_EQ(host.importedCount(), before + 1) << "the ellipse";
        EXPECT_EQ(log.records().size(), 3);
        EXPECT_EQ(log.messages().value(0),
                  u"The host gives no item of the class that belongs to type 65578; "
                  "it is left out"_s);
        wrong->clear();
    }
}
