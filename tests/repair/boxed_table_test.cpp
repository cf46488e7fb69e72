// Tables in text boxes: labels of an assistant, forms.

#include "tests/repair/documents.h"

#include "host/items/rich_text_item.h"
#include "repair/repaired_import.h"

#include <QBuffer>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double BoxInch = 72.0;

const QByteArray BoxStyles =
    "<style:style style:name=\"c\" style:family=\"table-column\"><style:table-column-properties "
    "style:column-width=\"1in\"/></style:style>"
    "<style:style style:name=\"r\" style:family=\"table-row\"><style:table-row-properties "
    "style:row-height=\"0.5in\"/></style:style>"
    "<style:style style:name=\"f\" style:family=\"graphic\"><style:graphic-properties "
    "text:anchor-type=\"as-char\" fo:border=\"1pt solid #112233\"/></style:style>"
    "<style:style style:name=\"p\" style:family=\"table-cell\"><style:table-cell-properties "
    "fo:padding=\"0.1in\"/></style:style>";

QByteArray cellRow(const QByteArray& left, const QByteArray& right)
{
    return "<table:table-row table:style-name=\"r\"><table:table-cell>" + left +
           "</table:table-cell><table:table-cell table:style-name=\"p\">" + right +
           "</table:table-cell></table:table-row>";
}

QByteArray cellTable(const QByteArray& rows)
{
    return "<table:table><table:table-column table:style-name=\"c\" "
           "table:number-columns-repeated=\"2\"/>" +
           rows + "</table:table>";
}

/// A page of 10 by 5 cm with a frame of 3 by 1.5 inches that contains this XML.
class LabelPage
{
public:
    explicit LabelPage(const QByteArray& content)
    {
        QImage picture(2, 2, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QByteArray png;
        QBuffer buffer(&png);
        EXPECT_TRUE(picture.save(&buffer, "PNG"));
        m_import = repair::importRepaired(writePackage(
            m_folder.path(),
            "<office:document-content><office:automatic-styles>" + BoxStyles +
                "</office:automatic-styles><office:body><office:text><text:p><draw:frame "
                "draw:style-name=\"f\" svg:width=\"3in\" svg:height=\"1.5in\"><draw:text-box>" +
                content +
                "</draw:text-box></draw:frame></text:p></office:text></office:body>"
                "</office:document-content>",
            drawingStyles(), {{u"Pictures/p.png"_s, png}}));
        EXPECT_TRUE(m_import.isRepaired());
    }

    /// The box of the item with this text; null if there is none.
    [[nodiscard]] QRectF text(const QString& words) const
    {
        for (workbench::CanvasItem* const item : m_import.result.canvas->items()) {
            auto* const text = dynamic_cast<RichTextItem*>(item->contractItem());
            if (text != nullptr && text->toPlainText() == words) {
                return boxOf(*item);
            }
        }
        ADD_FAILURE() << "no text " << words.toStdString();
        return {};
    }
    [[nodiscard]] QList<QRectF> boxes(KestTypes::ShapeType type) const
    {
        QList<QRectF> boxes;
        for (const workbench::CanvasItem* const item : m_import.result.canvas->items()) {
            if (item->shapeType() == type) {
                boxes.append(boxOf(*item));
            }
        }
        return boxes;
    }
    [[nodiscard]] QMap<QString, int> repairs() const
    {
        QMap<QString, int> counts;
        for (const repair::Repair& repair : m_import.repairs) {
            counts.insert(repair.code, repair.count);
        }
        return counts;
    }

private:
    [[nodiscard]] static QRectF boxOf(const workbench::CanvasItem& item)
    {
        const workbench::ItemValues values = item.values();
        return {values.placement.position, values.box.size};
    }

    const QTemporaryDir m_folder;
    repair::RepairedImport m_import;
};

} // namespace

TEST(BoxedTable, HasItsCellsInTheirPlaces)
{
    const LabelPage page("<text:section>" +
                         cellTable(cellRow("<text:p>Name</text:p>", "<text:p>Ada</text:p>") +
                                   cellRow("<text:p>Phone</text:p>", "<text:p>12</text:p>")) +
                         "</text:section>");
    EXPECT_EQ(page.repairs().value(u"tables-split"_s), 1);
    QList<QRectF> boxes = page.boxes(KestTypes::Rectangle);
    boxes.removeIf([](const QRectF& box) { return std::abs(box.width() - 3.0 * BoxInch) > 0.1; });
    ASSERT_EQ(boxes.size(), 1);
    const QRectF frame = boxes[0];
    const QRectF name = page.text(u"Name"_s);
    EXPECT_NEAR(name.left(), frame.left(), 0.1);
    EXPECT_NEAR(name.top(), frame.top(), 0.1);
    // The padding of the cell.
    EXPECT_NEAR(page.text(u"Ada"_s).left() - name.left(), 1.1 * BoxInch, 0.1);
    EXPECT_NEAR(page.text(u"Ada"_s).top() - name.top(), 0.1 * BoxInch, 0.1);
    EXPECT_NEAR(page.text(u"Phone"_s).top() - name.top(), 0.5 * BoxInch, 0.1);
}

TEST(BoxedTable, IsBetweenTheParagraphsOfItsBox)
{
    const LabelPage page("<text:p>Above</text:p>" +
                         cellTable(cellRow("<text:p>Cell</text:p>", "<text:p/>")) +
                         "<text:p>Below</text:p>");
    const double line = page.text(u"Cell"_s).top() - page.text(u"Above"_s).top();
    EXPECT_NEAR(line, 13.8, 0.1);
    EXPECT_NEAR(page.text(u"Below"_s).top() - page.text(u"Cell"_s).top(), 0.5 * BoxInch, 0.1);
}

TEST(BoxedTable, ContainsTablesAndPictures)
{
    const LabelPage page(cellTable(
        cellRow("<text:p>Outer</text:p>",
                cellTable(cellRow("<text:p>Inner</text:p>", "<text:p/>"))) +
        cellRow("<text:p><draw:frame text:anchor-type=\"as-char\" svg:width=\"0.4in\" "
                "svg:height=\"0.4in\"><draw:image xlink:href=\"Pictures/p.png\"/></draw:frame>"
                "</text:p>",
                "<text:p>Last</text:p>")));
    EXPECT_NEAR(page.text(u"Inner"_s).left() - page.text(u"Outer"_s).left(), 1.1 * BoxInch, 0.1);
    const QList<QRectF> pictures = page.boxes(KestTypes::Picture);
    ASSERT_EQ(pictures.size(), 1);
    EXPECT_NEAR(pictures[0].left(), page.text(u"Outer"_s).left(), 0.1);
    EXPECT_GT(pictures[0].top(), page.text(u"Outer"_s).bottom());
}

TEST(BoxedTable, IsNotWhereNoTableIs)
{
    const LabelPage page("<text:section><text:p>Plain</text:p></text:section>");
    EXPECT_EQ(page.repairs().value(u"tables-split"_s), 0);
    EXPECT_FALSE(page.text(u"Plain"_s).isNull());
}

TEST(BoxedTable, HoldsTheDepthOfTables)
{
    const auto texts = [](int depth) {
        QByteArray content;
        for (int i = 0; i < depth; ++i) {
            content = cellTable(cellRow("<text:p>level</text:p>" + content, "<text:p/>"));
        }
        const LabelPage page(content);
        return page.boxes(KestTypes::RichText).size();
    };
    // And the line with the frame.
    EXPECT_EQ(texts(20), 20 + 1);
    // Deeper ones are paragraphs of the last cell.
    EXPECT_EQ(texts(30), 20 + 1);
}
