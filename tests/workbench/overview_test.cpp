// A sheet with all items, for visual inspection; other tests check pixels.
// LABELPORT_OVERVIEW names the folder for the picture.

#include "painted.h"

#include "host/items/barcode_item.h"
#include "host/items/line_item.h"
#include "host/items/pix_map_item.h"
#include "host/items/rich_text_item.h"
#include "host/items/simple_text_item.h"
#include "host/items/symbol_item.h"
#include "workbench/rendering/page_image.h"

#include <QDir>
#include <QPixmap>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double CellPoints = 72.0;

class Sheet
{
public:
    Sheet() { m_page.canvas.importCanvasParameters(10 * CellPoints, 8 * CellPoints, false, false); }

    /// The next item of the row, in a box of 56 by 48 points.
    template <class Class>
    Class& put(KestTypes::ShapeType type)
    {
        Item& item = m_page.make<Item>(type);
        item.setItemSize(QSizeF(56.0, 48.0));
        dynamic_cast<QGraphicsItem&>(item).setPos(m_column * CellPoints + 8.0,
                                                  m_row * CellPoints + 12.0);
        if (++m_column == 10) {
            nextRow();
        }
        return dynamic_cast<Class&>(item);
    }

    void nextRow()
    {
        m_column = 0;
        ++m_row;
    }

    [[nodiscard]] const workbench::Canvas& canvas() const { return m_page.canvas; }

private:
    Painted m_page;
    int m_column = 0;
    int m_row = 0;
};

void putShapes(Sheet& sheet)
{
    for (const auto type :
         {KestTypes::Rectangle, KestTypes::RoundedRectangle, KestTypes::Ellipse, KestTypes::Pie,
          KestTypes::RightTriangle, KestTypes::Triangle, KestTypes::Diamond, KestTypes::Pentagon,
          KestTypes::Hexagon, KestTypes::Octagon}) {
        auto& item = sheet.put<FillableItem>(type);
        item.setPenWidth(2);
        item.setFillColor(QColor(0xff, 0xd5, 0x80));
    }
}

void putBrushes(Sheet& sheet)
{
    for (const int style : {2, 4, 7, 9, 10, 11, 12, 13, 14, 15}) {
        auto& item = sheet.put<FillableItem>(KestTypes::Rectangle);
        item.setFillColor(QColor(0x20, 0x50, 0xa0));
        item.setBrushStyle(style);
    }
}

void putPens(Sheet& sheet)
{
    for (const int style : {1, 2, 3, 4, 5}) {
        auto& item = sheet.put<FillableItem>(KestTypes::Rectangle);
        item.setPenWidth(3);
        item.setPenStyle(style);
        item.setItemRotation(style * 15.0);
    }
    for (const int join : {0x00, 0x40, 0x80}) {
        auto& item = sheet.put<FillableItem>(KestTypes::Triangle);
        item.setPenWidth(8);
        item.setJoinStyle(join);
    }
    auto& flipped = sheet.put<FillableItem>(KestTypes::RightTriangle);
    flipped.setFlipHorizontal(true);
    flipped.setFillColor(Qt::darkGreen);
    auto& hairline = sheet.put<FillableItem>(KestTypes::Ellipse);
    hairline.setPenWidth(0);
}

void putLines(Sheet& sheet)
{
    for (const int marker : {0, 1, 3, 5, 8}) {
        auto& line = sheet.put<LineItem>(KestTypes::Line);
        line.setPenWidth(2);
        line.setLineEndMarker(marker);
    }
    for (const int marker : {0x10, 0x30, 0x50, 0x80}) {
        auto& line = sheet.put<LineItem>(KestTypes::Line);
        line.setLineLength(56.0);
        line.setPenWidth(3);
        line.setLineStartMarker(marker);
        line.setLineEndMarker(marker >> 4);
    }
    sheet.nextRow();
}

void putTexts(Sheet& sheet)
{
    for (const auto alignment : {Qt::AlignLeft | Qt::AlignTop, Qt::AlignHCenter | Qt::AlignVCenter,
                                 Qt::AlignRight | Qt::AlignBottom}) {
        auto& text = sheet.put<TextItem>(KestTypes::RichText);
        text.setText(u"Some words\nin a box"_s);
        text.setFontPointSize(10);
        text.setTextAlignment(alignment);
        text.setPenStyle(Qt::SolidLine);
        text.setPenWidth(0);
    }
    auto& scaled = sheet.put<TextItem>(KestTypes::SimpleText);
    scaled.setText(u"Scaled"_s);
    scaled.setPenStyle(Qt::DotLine);
    auto& inverse = sheet.put<SimpleTextItem>(KestTypes::SimpleText);
    inverse.setItemSizeLimiting(0);
    inverse.importTextProperties(u"Inverse"_s, 14, true, true, true, Qt::AlignLeft);
    inverse.setTextColor(Qt::white);
    inverse.setFillColor(Qt::black);
    auto& html = sheet.put<RichTextItem>(KestTypes::RichText);
    html.setHtml(u"<p align=\"center\" style=\"font-size:9pt\"><b>Bold</b> and "
                 "<i style=\"color:#c00000\">red</i></p>"_s);
    html.adjustBoxSizeToContent(56.0);
    auto& mirrored = sheet.put<TextItem>(KestTypes::SimpleText);
    mirrored.setText(u"Mirror"_s);
    mirrored.setFlipHorizontal(true);
    auto& serif = sheet.put<TextItem>(KestTypes::RichText);
    serif.setFontFamily(u"Times New Roman"_s);
    serif.setText(u"Times at 12 points"_s);
    auto& turned = sheet.put<TextItem>(KestTypes::SimpleText);
    turned.setText(u"Turned"_s);
    turned.setItemRotation(90.0);
    sheet.nextRow();
}

void putPictures(Sheet& sheet)
{
    QImage image(8, 8, QImage::Format_RGB32);
    for (int i = 0; i < 64; ++i) {
        image.setPixelColor(i % 8, i / 8, QColor::fromHsv(i * 5, 200, 230));
    }
    auto& picture = sheet.put<PixMapItem>(KestTypes::Picture);
    picture.pixmapImportActions(QPixmap::fromImage(image));
    picture.setItemSize(QSizeF(56.0, 48.0));
    auto& symbol = sheet.put<SymbolItem>(KestTypes::Symbol);
    symbol.loadItemFromData("<svg xmlns='http://www.w3.org/2000/svg' width='40' height='40'>"
                            "<circle cx='20' cy='20' r='18'/><rect x='14' y='14' width='12' "
                            "height='12' fill='#ffcc00'/>"
                            "</svg>");
    symbol.setItemSize(QSizeF(48.0, 48.0));
    symbol.setForegroundColor(Qt::darkBlue);
    symbol.setBackgroundColor(QColor(0xee, 0xee, 0xee));
    for (const int code : {20, 58, 71}) {
        auto& barcode = sheet.put<BarcodeItem>(KestTypes::Barcode);
        barcode.importBarcodeProperties(code, u"12345678"_s, true, Qt::AlignCenter, 1, false, false,
                                        0, 0, 0);
    }
    sheet.nextRow();
}

} // namespace

TEST(Overview, EverythingOnOneSheetPaintsAndCanBeLookedAt)
{
    Sheet sheet;
    putShapes(sheet);
    putBrushes(sheet);
    putPens(sheet);
    putLines(sheet);
    putTexts(sheet);
    putPictures(sheet);

    const workbench::PageImage page = workbench::renderPage(sheet.canvas(), 144.0);

    ASSERT_EQ(page.error, QString());
    EXPECT_EQ(page.image.size(), QSize(1440, 1152));
    EXPECT_FALSE(inkOf(page.image).isEmpty());
    const QString folder = qEnvironmentVariable("LABELPORT_OVERVIEW");
    if (!folder.isEmpty()) {
        EXPECT_EQ(workbench::writePng(page.image, QDir(folder).filePath(u"overview.png"_s)),
                  QString());
    }
}
