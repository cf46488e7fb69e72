// Which elements of a body become items, and of which type.

#include "reader_fixture.h"
#include "tests/support/captured_log.h"

using namespace Qt::StringLiterals;

namespace {

class Body : public ReaderTest
{
protected:
    Types typesOf(const QByteArray& content)
    {
        EXPECT_TRUE(import(stylesXml(), content));
        EXPECT_EQ(host.calls().last(), u"canvas completeCanvasLoading"_s);
        return host.requestedTypes();
    }
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
              (Types{KestTypes::Rectangle, KestTypes::RoundedRectangle, KestTypes::Ellipse,
                     KestTypes::Ellipse, KestTypes::Line, KestTypes::Line, KestTypes::Rectangle,
                     KestTypes::Rectangle, KestTypes::Pie}));
}

TEST_F(Body, OtherDrawingElementsAreSkipped)
{
    EXPECT_EQ(typesOf(drawingXml("<draw:g><draw:rect/></draw:g><draw:path/><draw:polygon/>"
                                 "<text:p>x</text:p><draw:Rect/><!-- c -->text<draw:connector/>")),
              Types());
}

TEST_F(Body, CustomShapesGoByTheirType)
{
    const struct
    {
        QByteArray type;
        KestTypes::ShapeType item;
    } rows[] = {
        {"right-triangle", KestTypes::RightTriangle},
        {"isosceles-triangle", KestTypes::Triangle},
        {"round-rectangle", KestTypes::RoundedRectangle},
        {"ellipse", KestTypes::Ellipse},
        {"circle", KestTypes::Ellipse},
        {"mso-spt100", KestTypes::Pie},
        {"pentagon", KestTypes::Pentagon},
        {"diamond", KestTypes::Diamond},
        {"hexagon", KestTypes::Hexagon},
        {"octagon", KestTypes::Octagon},
        {"star", KestTypes::Rectangle},
        {"rectangle", KestTypes::Rectangle},
        {"Hexagon", KestTypes::Rectangle},
        {"", KestTypes::Rectangle},
    };
    QByteArray shapes;
    Types items;
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
              Types{KestTypes::Rectangle});
}

TEST_F(Body, OnlyTheFirstPageOfADrawingIsRead)
{
    EXPECT_EQ(typesOf(contentXml("<office:drawing><draw:page><draw:rect/></draw:page>"
                                 "<draw:page><draw:ellipse/></draw:page></office:drawing>")),
              Types{KestTypes::Rectangle});
}

TEST_F(Body, TheFirstElementOfADrawingIsItsPageWhateverItsName)
{
    EXPECT_EQ(typesOf(contentXml("<office:drawing><text:variable-decls><draw:line/>"
                                 "</text:variable-decls><draw:page><draw:rect/></draw:page>"
                                 "</office:drawing>")),
              Types{KestTypes::Line});
}

TEST_F(Body, TextsHaveParagraphsHeadingsAndFrames)
{
    EXPECT_EQ(typesOf(textXml("<text:sequence-decls/><text:p>a</text:p><text:h>b</text:h>"
                              "<draw:frame/><text:list><text:p>no</text:p></text:list>"
                              "<draw:rect/><text:span>no</text:span>")),
              (Types{KestTypes::RichText, KestTypes::RichText, KestTypes::Rectangle}));
}

TEST_F(Body, EmptyDocumentsHaveNoItems)
{
    EXPECT_EQ(typesOf(textXml("")), Types());
    EXPECT_EQ(typesOf(drawingXml("")), Types());
    EXPECT_EQ(typesOf(contentXml("<office:drawing/>")), Types());
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
        EXPECT_EQ(typesOf(content), Types());
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
    for (auto* wrong : {&host.behavior().refusedTypes, &host.behavior().mismatchedTypes}) {
        *wrong = {KestTypes::Rectangle, KestTypes::Line, KestTypes::Hexagon};
        const CapturedLog log;
        const int before = host.importedCount();
        EXPECT_TRUE(import(stylesXml(), drawingXml(shapes)));
        EXPECT_EQ(host.importedCount(), before + 1) << "the ellipse";
        EXPECT_EQ(log.records().size(), 3);
        EXPECT_EQ(log.messages().value(0),
                  u"The host gives no item of the class that belongs to type 65578; "
                  "it is left out"_s);
        wrong->clear();
    }
}
