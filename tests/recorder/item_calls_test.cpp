// Each operation of each facet becomes one line with its arguments, on every class that
// has the facet.

#include "host/facets/i_line_item.h"
#include "host/items/barcode_item.h"
#include "host/items/pix_map_item.h"
#include "host/items/rich_text_item.h"
#include "host/items/rounded_rectangle_item.h"
#include "host/items/simple_text_item.h"
#include "host/items/symbol_item.h"
#include "recorder_fixture.h"

#include <functional>
#include <limits>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

class ItemCalls : public RecorderTest
{
protected:
    /// Calls an operation of a new item and compares the line without the item's name.
    void expectCall(KestTypes::ShapeType type, const std::function<void(Item&)>& act,
                    const char* expected)
    {
        SCOPED_TRACE(expected);
        const std::unique_ptr<Item> item = make(type);
        ++m_made;
        act(*item);
        const QString prefix = uR"({"on":"item:%1","call":)"_s.arg(m_made);
        EXPECT_EQ(newLine(), prefix + QString::fromUtf8(expected) + QLatin1Char('}'));
    }

    template <typename Facet>
    void expectOn(KestTypes::ShapeType type, const std::function<void(Facet&)>& act,
                  const char* expected)
    {
        expectCall(
            type, [&act](Item& item) { act(dynamic_cast<Facet&>(item)); }, expected);
    }

    template <typename Facet>
    void expectOnEach(const std::vector<KestTypes::ShapeType>& types,
                      const std::function<void(Facet&)>& act, const char* expected)
    {
        for (const KestTypes::ShapeType type : types) {
            expectOn<Facet>(type, act, expected);
        }
    }

private:
    int m_made = 0;
};

const std::vector<KestTypes::ShapeType> Shapes{
    KestTypes::Rectangle,     KestTypes::RoundedRectangle, KestTypes::Ellipse, KestTypes::Pie,
    KestTypes::RightTriangle, KestTypes::Triangle,         KestTypes::Diamond, KestTypes::Pentagon,
    KestTypes::Hexagon,       KestTypes::Octagon};
const std::vector<KestTypes::ShapeType> Texts{KestTypes::SimpleText, KestTypes::RichText};

std::vector<KestTypes::ShapeType> together(std::vector<KestTypes::ShapeType> types,
                                           const std::vector<KestTypes::ShapeType>& more)
{
    types.insert(types.end(), more.begin(), more.end());
    return types;
}

const std::vector<KestTypes::ShapeType> Fillables = together(Shapes, Texts);
const std::vector<KestTypes::ShapeType> Contoured = together(Fillables, {KestTypes::Line});
const std::vector<KestTypes::ShapeType> Bound =
    together(Texts, {KestTypes::Barcode, KestTypes::Picture, KestTypes::Symbol});
const std::vector<KestTypes::ShapeType> All =
    together(Contoured, {KestTypes::Barcode, KestTypes::Picture, KestTypes::Symbol});

TEST_F(ItemCalls, BoxRotationAndFlips)
{
    expectOnEach<Item>(
        All,
        [](Item& item) {
            item.setItemSize({10, 20.5});
        },
        R"("setItemSize","args":[10,20.5])");
    expectOnEach<Item>(
        All, [](Item& item) { item.setItemRotation(-45); }, R"("setItemRotation","args":[-45])");
    expectOnEach<Item>(
        All, [](Item& item) { item.setFlipHorizontal(true); },
        R"("setFlipHorizontal","args":[true])");
    expectOnEach<Item>(
        All, [](Item& item) { item.setFlipVertical(false); },
        R"("setFlipVertical","args":[false])");
}

TEST_F(ItemCalls, SizesStartAtNothingAndAreKept)
{
    expectOnEach<Item>(
        All, [](Item& item) { EXPECT_EQ(item.getItemSize(), QSizeF(0, 0)); },
        R"("getItemSize","args":[],"returns":[0,0])");
    for (const KestTypes::ShapeType type : All) {
        const std::unique_ptr<Item> item = make(type);
        item->setItemSize({3, 4});
        EXPECT_EQ(item->getItemSize(), QSizeF(3, 4));
        EXPECT_EQ(item->getItemWidth(), 3);
        EXPECT_EQ(item->getItemHeight(), 4);
        const QStringList lines = newLines();
        ASSERT_EQ(lines.size(), 4);
        EXPECT_TRUE(lines.at(1).endsWith(uR"("call":"getItemSize","args":[],"returns":[3,4]})"_s));
        EXPECT_TRUE(lines.at(2).endsWith(uR"("call":"getItemWidth","args":[],"returns":3})"_s));
        EXPECT_TRUE(lines.at(3).endsWith(uR"("call":"getItemHeight","args":[],"returns":4})"_s));
    }
}

TEST_F(ItemCalls, SizesThatAreNotNumbers)
{
    const double infinite = std::numeric_limits<double>::infinity();
    expectCall(
        KestTypes::Rectangle,
        [infinite](Item& item) {
            item.setItemSize({infinite, -1});
        },
        R"("setItemSize","args":["inf",-1])");
}

TEST_F(ItemCalls, Pen)
{
    expectOnEach<PenItem>(
        Contoured, [](PenItem& item) { item.setPenColor(Qt::red); },
        R"("setPenColor","args":["#ffff0000"])");
    expectOnEach<PenItem>(
        Contoured, [](PenItem& item) { item.setPenColor(QColor()); },
        R"("setPenColor","args":[null])");
    expectOnEach<PenItem>(
        Contoured, [](PenItem& item) { item.setPenWidth(65535); },
        R"("setPenWidth","args":[65535])");
    expectOnEach<PenItem>(
        Contoured, [](PenItem& item) { item.setPenStyle(3); }, R"("setPenStyle","args":[3])");
    expectOnEach<PenItem>(
        Contoured, [](PenItem& item) { item.setCapStyle(16); }, R"("setCapStyle","args":[16])");
    expectOnEach<PenItem>(
        Contoured, [](PenItem& item) { item.setJoinStyle(64); }, R"("setJoinStyle","args":[64])");
}

TEST_F(ItemCalls, FillAndBrush)
{
    expectOnEach<FillColorItem>(
        together(Fillables, {KestTypes::Barcode, KestTypes::Symbol}),
        [](FillColorItem& item) { item.setFillColor(Qt::transparent); },
        R"("setFillColor","args":["#00000000"])");
    expectOnEach<FillColorItem>(
        together(Fillables, {KestTypes::Barcode, KestTypes::Symbol}),
        [](FillColorItem& item) { item.setFillColor(QColor()); },
        R"("setFillColor","args":[null])");
    expectOnEach<IBrushItem>(
        Fillables, [](IBrushItem& item) { item.setFilled(true); }, R"("setFilled","args":[true])");
    expectOnEach<IBrushItem>(
        Fillables, [](IBrushItem& item) { item.setBrushStyle(14); },
        R"("setBrushStyle","args":[14])");
}

TEST_F(ItemCalls, FontAndText)
{
    const auto fonts = together(Texts, {KestTypes::Barcode});
    expectOnEach<IFontItem>(
        fonts, [](IFontItem& item) { item.setFontFamily(u"Arial"_s); },
        R"("setFontFamily","args":["Arial"])");
    expectOnEach<IFontItem>(
        fonts, [](IFontItem& item) { item.setFontPointSize(-1); },
        R"("setFontPointSize","args":[-1])");
    expectOnEach<IFontItem>(
        fonts, [](IFontItem& item) { item.setFontBold(true); }, R"("setFontBold","args":[true])");
    expectOnEach<IFontItem>(
        fonts, [](IFontItem& item) { item.setFontItalic(true); },
        R"("setFontItalic","args":[true])");
    expectOnEach<IFontItem>(
        fonts, [](IFontItem& item) { item.setFontUnderline(true); },
        R"("setFontUnderline","args":[true])");
    expectOnEach<TextColorItem>(
        fonts, [](TextColorItem& item) { item.setTextColor(Qt::blue); },
        R"("setTextColor","args":["#ff0000ff"])");
    expectOnEach<ITextAlignItem>(
        fonts, [](ITextAlignItem& item) { item.setTextAlignment(Qt::AlignCenter); },
        R"("setTextAlignment","args":[132])");
    expectOnEach<ITextGenericItem>(
        Texts, [](ITextGenericItem& item) { item.setText(u"a\nb"_s); },
        R"("setText","args":["a\nb"])");
}

TEST_F(ItemCalls, DataSourceBinding)
{
    expectOnEach<IDatasourceItem>(
        Bound, [](IDatasourceItem& item) { item.setDatasourceId(4); },
        R"("setDatasourceId","args":[4])");
    expectOnEach<IDatasourceItem>(
        Bound,
        [](IDatasourceItem& item) {
            item.setDatasourceFields({u"Value"_s, u"x"_s});
        },
        R"("setDatasourceFields","args":[["Value","x"]])");
}

TEST_F(ItemCalls, LineAndCorners)
{
    const auto expectLine = [this](const std::function<void(ILineItem&)>& act, const char* call) {
        expectOn<ILineItem>(KestTypes::Line, act, call);
    };
    expectLine([](ILineItem& item) { item.setLineLength(72.5); },
               R"("setLineLength","args":[72.5])");
    expectLine(
        [](ILineItem& item) {
            item.setLineStartPoint({1, 2});
        },
        R"("setLineStartPoint","args":[1,2])");
    expectLine(
        [](ILineItem& item) {
            item.setLineEndPoint({3, 4});
        },
        R"("setLineEndPoint","args":[3,4])");
    expectLine([](ILineItem& item) { item.setLineStartMarker(0x10); },
               R"("setLineStartMarker","args":[16])");
    expectLine([](ILineItem& item) { item.setLineEndMarker(8); },
               R"("setLineEndMarker","args":[8])");
    expectOn<IRoundRectItem>(
        KestTypes::RoundedRectangle, [](IRoundRectItem& item) { item.setCornerRadius(2.25); },
        R"("setCornerRadius","args":[2.25])");
}

TEST_F(ItemCalls, SimpleText)
{
    const auto expectText = [this](const std::function<void(SimpleTextItem&)>& act,
                                   const char* call) {
        expectOn<SimpleTextItem>(KestTypes::SimpleText, act, call);
    };
    expectText(
        [](SimpleTextItem& item) {
            item.setTextBoxSize({5, 6});
        },
        R"("setTextBoxSize","args":[5,6])");
    expectText([](SimpleTextItem& item) { item.setOptionA(true); },
               R"("setOptionA","args":[true])");
    expectText([](SimpleTextItem& item) { item.setOptionB(false); },
               R"("setOptionB","args":[false])");
    expectText([](SimpleTextItem& item) { item.applyTextOptions(); },
               R"("applyTextOptions","args":[])");
    expectText([](SimpleTextItem& item) { item.setItemSizeLimiting(3); },
               R"("setItemSizeLimiting","args":[3])");
    expectText(
        [](SimpleTextItem& item) {
            item.importTextProperties(u"t"_s, 12, true, false, true, Qt::AlignRight);
        },
        R"("importTextProperties","args":["t",12,true,false,true,2])");
}

TEST_F(ItemCalls, TheTextBoxIsNotTheItemsSize)
{
    const std::unique_ptr<Item> item = make(KestTypes::SimpleText);
    dynamic_cast<ITextLabelItem&>(*item).setTextBoxSize({5, 6});
    EXPECT_EQ(item->getItemSize(), QSizeF(0, 0));
}

TEST_F(ItemCalls, RichTextTakesTheWidthAndAFixedHeight)
{
    const std::unique_ptr<Item> item = make(KestTypes::RichText);
    dynamic_cast<RichTextItem&>(*item).adjustBoxSizeToContent(80);
    EXPECT_EQ(newLine(), uR"({"on":"item:1","call":"adjustBoxSizeToContent","args":[80]})"_s);
    EXPECT_EQ(item->getItemSize(), QSizeF(80, 12));
}

TEST_F(ItemCalls, Barcode)
{
    expectOn<IBarcodeItem>(
        KestTypes::Barcode, [](IBarcodeItem& item) { item.setBarcodeType(20); },
        R"("setBarcodeType","args":[20])");
    expectOn<BarcodeItem>(
        KestTypes::Barcode,
        [](BarcodeItem& item) {
            item.importBarcodeProperties(58, u"123"_s, true, 4, 2, false, true, 1, 7, 9);
        },
        R"("importBarcodeProperties","args":[58,"123",true,4,2,false,true,1,7,9])");
    expectOn<BarcodeItem>(
        KestTypes::Barcode, [](BarcodeItem& item) { item.setForegroundColor(Qt::black); },
        R"("setForegroundColor","args":["#ff000000"])");
    expectOn<BarcodeItem>(
        KestTypes::Barcode, [](BarcodeItem& item) { item.setBackgroundColor(Qt::white); },
        R"("setBackgroundColor","args":["#ffffffff"])");
}

TEST_F(ItemCalls, PictureTakesThePixmapsSize)
{
    const std::unique_ptr<Item> item = make(KestTypes::Picture);
    auto& picture = dynamic_cast<PixMapItem&>(*item);
    picture.pixmapImportActions(QPixmap(30, 20));
    EXPECT_EQ(newLine(), uR"({"on":"item:1","call":"pixmapImportActions",)"
                         R"("args":[{"width":30,"height":20}]})"_s);
    EXPECT_EQ(item->getItemSize(), QSizeF(30, 20));
    picture.pixmapImportActions(QPixmap());
    EXPECT_EQ(item->getItemSize(), QSizeF(0, 0));
}

TEST_F(ItemCalls, SymbolTakesTheDrawingsSize)
{
    const std::unique_ptr<Item> item = make(KestTypes::Symbol);
    auto& symbol = dynamic_cast<SymbolItem&>(*item);
    symbol.loadItemFromData("<svg xmlns='http://www.w3.org/2000/svg' width='40' height='30'/>");
    EXPECT_TRUE(newLine().startsWith(
        uR"({"on":"item:1","call":"loadItemFromData","args":[{"bytes":64,"sha1":")"_s));
    EXPECT_EQ(item->getItemSize(), QSizeF(40, 30));
    symbol.loadItemFromData("no drawing");
    EXPECT_EQ(item->getItemSize(), QSizeF(0, 0));
}

TEST_F(ItemCalls, SymbolColors)
{
    expectOn<SymbolItem>(
        KestTypes::Symbol, [](SymbolItem& item) { item.setForegroundColor(Qt::black); },
        R"("setForegroundColor","args":["#ff000000"])");
    expectOn<SymbolItem>(
        KestTypes::Symbol, [](SymbolItem& item) { item.setBackgroundColor(Qt::white); },
        R"("setBackgroundColor","args":["#ffffffff"])");
}

} // namespace
