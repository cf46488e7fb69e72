// Documents and drawings of a page: their size, their title, and the structure of a drawing.

#include "workbench/items/shape_items.h"
#include "workbench/rendering/page_export.h"
#include "workbench/rendering/svg_groups.h"

#include "painted.h"

#include <QDomDocument>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace workbench;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double PointsPerMillimeter = 72.0 / 25.4;

class PageExport : public ::testing::Test
{
protected:
    PageExport()
    {
        PageValues page;
        page.size = QSizeF(100, 120) * PointsPerMillimeter; // 283.46 x 340.16 points
        canvas.setPage(page);
    }

    void addRectangle(double x)
    {
        auto& item = painted.make<workbench::RectangleItem>(KestTypes::Rectangle);
        item.setItemSize({20, 20});
        item.setPos(x, 10);
    }

    QByteArray document()
    {
        EXPECT_EQ(writePdf(canvas, file, u"Shelf 4"_s, 2, [](qint64) { return true; }), QString());
        return written();
    }

    QDomDocument drawing()
    {
        EXPECT_EQ(writeSvg(canvas, file, u"Shelf <4>"_s), QString());
        QDomDocument document;
        EXPECT_TRUE(document.setContent(written()));
        return document;
    }

    QByteArray written() const
    {
        QFile read(file);
        EXPECT_TRUE(read.open(QIODevice::ReadOnly));
        return read.readAll();
    }

    const QTemporaryDir folder;
    const QString file = folder.filePath(u"out"_s);
    Painted painted;
    Canvas& canvas = painted.canvas;
};

TEST_F(PageExport, PagesOfADocumentHaveTheExactSize)
{
    const QByteArray pdf = document();
    static const QRegularExpression box(u"/MediaBox \\[0 ([0-9.]+) ([0-9.]+) ([0-9.]+) *\\]"_s);
    QRegularExpressionMatchIterator boxes = box.globalMatch(QString::fromLatin1(pdf));
    int pages = 0;
    while (boxes.hasNext()) {
        const QRegularExpressionMatch match = boxes.next();
        const double height = match.captured(3).toDouble() - match.captured(1).toDouble();
        EXPECT_NEAR(match.captured(2).toDouble(), 100 * PointsPerMillimeter, 0.001);
        EXPECT_NEAR(height, 120 * PointsPerMillimeter, 0.001);
        EXPECT_EQ(match.captured(3), u"341"_s); // Qt's own height, the upper edge of the content
        ++pages;
    }
    EXPECT_EQ(pages, 2);
}

// The cross-reference table contains byte offsets, which a changed size must not move.
TEST_F(PageExport, ADocumentsOffsetsPointToItsObjects)
{
    const QByteArray pdf = document();
    const qsizetype table = pdf.lastIndexOf("\nxref\n") + 1;
    ASSERT_GT(table, 0);
    EXPECT_NE(pdf.indexOf("\nstartxref\n" + QByteArray::number(table) + " \n"), -1);
    const QList<QByteArray> lines = pdf.mid(table).split('\n');
    const int objects = lines.at(1).split(' ').at(1).toInt();
    ASSERT_GT(objects, 5);
    for (int i = 1; i < objects; ++i) {
        const qsizetype offset = lines.at(2 + i).left(10).toLongLong();
        const QByteArray start = QByteArray::number(i) + " 0 obj";
        EXPECT_EQ(pdf.mid(offset, start.size()), start);
    }
}

TEST_F(PageExport, ADocumentHasTheLabelsNameAsTitle)
{
    QByteArray title = "\xfe\xff"; // UTF-16
    for (const char letter : {'S', 'h', 'e', 'l', 'f', ' ', '4'}) {
        title.append('\0').append(letter);
    }
    EXPECT_NE(document().indexOf("/Title (" + title + ')'), -1);
}

TEST_F(PageExport, ADrawingHasTheLabelsNameAsTitle)
{
    EXPECT_EQ(drawing().documentElement().firstChildElement(u"title"_s).text(), u"Shelf <4>"_s);
}

TEST_F(PageExport, ADrawingNamesItsItemsAndHasNoEmptyGroups)
{
    addRectangle(10);
    addRectangle(100);
    const QDomDocument svg = drawing();
    QStringList names;
    const QDomNodeList groups = svg.elementsByTagName(u"g"_s);
    for (int i = 0; i < groups.size(); ++i) {
        const QDomElement group = groups.at(i).toElement();
        EXPECT_FALSE(group.firstChildElement().isNull());
        if (group.hasAttribute(u"id"_s)) {
            names.append(group.attribute(u"id"_s));
            EXPECT_EQ(group.elementsByTagName(u"path"_s).size(), 1);
        }
    }
    EXPECT_EQ(names, QStringList({u"item-1"_s, u"item-2"_s}));
    EXPECT_FALSE(written().contains("-900000")); // no mark is left
}

TEST(SvgGroups, LeaveABrokenDrawingUnchanged)
{
    EXPECT_EQ(withNamedItems("<svg><g>"), "<svg><g>");
}

TEST(SvgGroups, KeepTextAndItsBlanks)
{
    const QByteArray named = withNamedItems(
        "<svg><g><g a=\"1\"><text>  </text><text>a &lt; b</text></g><g a=\"2\">\n</g></g></svg>");
    EXPECT_TRUE(named.contains("<text>  </text>")) << named.constData();
    EXPECT_TRUE(named.contains("<text>a &lt; b</text>"));
    EXPECT_FALSE(named.contains("a=\"2\""));
}

} // namespace
