// The bases of the contract's classes, in their order, and the number of each class. Hosts are
// compiled separately, so these must not change.

#include "host/items/barcode_item.h"
#include "host/items/line_item.h"
#include "host/items/pie_item.h"
#include "host/items/pix_map_item.h"
#include "host/items/polygon_item.h"
#include "host/items/rich_text_item.h"
#include "host/items/rounded_rectangle_item.h"
#include "host/items/simple_text_item.h"
#include "host/items/symbol_item.h"
#include "host/kest_types.h"

#include <gtest/gtest.h>

#include <type_traits>
#if defined(__GNUC__) && !defined(__clang__)
#include <tr2/type_traits>
#endif

namespace {

// --- numbers ---

static_assert(KestTypes::Picture == 65548);
static_assert(KestTypes::Symbol == 65549);
static_assert(KestTypes::SimpleText == 65557);
static_assert(KestTypes::RichText == 65558);
static_assert(KestTypes::Barcode == 65565);
static_assert(KestTypes::Line == 65567);
static_assert(KestTypes::Rectangle == 65578);
static_assert(KestTypes::RoundedRectangle == 65579);
static_assert(KestTypes::Ellipse == 65580);
static_assert(KestTypes::Pie == 65582);
static_assert(KestTypes::RightTriangle == 65587);
static_assert(KestTypes::Triangle == 65588);
static_assert(KestTypes::Diamond == 65589);
static_assert(KestTypes::Pentagon == 65590);
static_assert(KestTypes::Hexagon == 65591);
static_assert(KestTypes::Octagon == 65592);
static_assert(std::is_same_v<std::underlying_type_t<KestTypes::ShapeType>, qint32>);
// Readers compute a text's code from a flag.
static_assert(KestTypes::RichText - 1 == KestTypes::SimpleText);

// --- bases ---

template <typename... Types>
struct TypeList
{};

/// Whether the base is public and not virtual: only then can a pointer to it be cast to the class
/// without accessing the object.
template <typename Class, typename Base>
constexpr bool isDirectBase = std::is_base_of_v<Base, Class>&& requires(Base* base, Class* derived)
{
    static_cast<Base*>(derived);
    static_cast<Class*>(base);
};

template <typename Class>
struct Bases
{
#if defined(__GNUC__) && !defined(__clang__)
    template <template <typename...> typename List, typename... Types>
    static TypeList<Types...> rename(List<Types...>);
    using Declared = decltype(rename(typename std::tr2::direct_bases<Class>::type{}));

    template <typename... Expected>
    static constexpr bool are = std::is_same_v<Declared, TypeList<Expected...>> &&
                                (isDirectBase<Class, Expected> && ...);
#else
    // This compiler cannot list bases; the order is then checked at run time only.
    template <typename... Expected>
    static constexpr bool are = (isDirectBase<Class, Expected> && ...);
#endif
};

template <typename... Classes>
constexpr bool haveNoBase = (Bases<Classes>::template are<> && ...);

static_assert(haveNoBase<ISizeItem, ITemplateLockItem, IColorItem, PenItem, FillColorItem,
                         IBrushItem, TextColorItem, ITextGenericItem, IFontItem, ITextAlignItem,
                         IDatasourceItem, ITextLabelItem, IRichTextItem, IBarcodeItem,
                         ImageableItem, IGraphicItem, ResizeRotatedHelper, IPieItem, ILineItem>);

static_assert(Bases<IBasicItem>::are<ISizeItem>);
static_assert(Bases<IRoundRectItem>::are<ISizeItem>);
static_assert(Bases<Item>::are<IBasicItem, ITemplateLockItem>);
static_assert(Bases<ColoredItem>::are<Item, IColorItem>);
static_assert(Bases<ContouredItem>::are<ColoredItem, PenItem>);
static_assert(Bases<FillableItem>::are<ContouredItem, FillColorItem, IBrushItem>);
static_assert(Bases<RectangleItem>::are<QObject, QGraphicsRectItem, FillableItem>);
static_assert(Bases<RoundedRectangleItem>::are<RectangleItem, IRoundRectItem>);
static_assert(Bases<EllipseItem>::are<QObject, QGraphicsEllipseItem, FillableItem>);
static_assert(Bases<PieItem>::are<EllipseItem, IPieItem>);
static_assert(Bases<PolygonItem>::are<QObject, QGraphicsPolygonItem, FillableItem>);
static_assert(Bases<LineItem>::are<QObject, QGraphicsLineItem, ContouredItem, ILineItem>);
static_assert(Bases<TextItem>::are<QGraphicsTextItem, FillableItem, TextColorItem, ITextGenericItem,
                                   IFontItem, ITextAlignItem, IDatasourceItem>);
static_assert(Bases<SimpleTextItem>::are<TextItem, ResizeRotatedHelper, ITextLabelItem>);
static_assert(Bases<RichTextItem>::are<TextItem, IRichTextItem>);
static_assert(Bases<BarcodeItem>::are<QObject, QGraphicsItem, Item, FillColorItem, TextColorItem,
                                      IFontItem, ITextAlignItem, IBarcodeItem, IDatasourceItem>);
static_assert(Bases<PixMapItem>::are<QObject, QGraphicsPixmapItem, Item, ImageableItem,
                                     ResizeRotatedHelper, IGraphicItem, IDatasourceItem>);
static_assert(Bases<SymbolItem>::are<QGraphicsSvgItem, ColoredItem, ResizeRotatedHelper,
                                     FillColorItem, IDatasourceItem>);

/// Every facet can be deleted through, and cast from, at run time.
template <typename... Facets>
constexpr bool haveVirtualDestructors = (std::has_virtual_destructor_v<Facets> && ...);

static_assert(
    haveVirtualDestructors<ISizeItem, ITemplateLockItem, IColorItem, PenItem, FillColorItem,
                           IBrushItem, TextColorItem, ITextGenericItem, IFontItem, ITextAlignItem,
                           IDatasourceItem, ITextLabelItem, IRichTextItem, IBarcodeItem,
                           ImageableItem, IGraphicItem, ResizeRotatedHelper, IPieItem, ILineItem>);

/// The item classes of the contract are abstract: a host must derive its own.
template <typename... Classes>
constexpr bool areAbstract = (std::is_abstract_v<Classes> && ...);

static_assert(
    areAbstract<RectangleItem, RoundedRectangleItem, EllipseItem, PieItem, PolygonItem, LineItem,
                SimpleTextItem, RichTextItem, BarcodeItem, PixMapItem, SymbolItem>);

TEST(ContractShape, IsCheckedByTheCompiler)
{
    // The assertions above are the test; this one shows that the check can fail.
    EXPECT_FALSE(Bases<Item>::are<ITemplateLockItem>);
#if defined(__GNUC__) && !defined(__clang__)
    constexpr bool otherOrder = Bases<ColoredItem>::are<IColorItem, Item>;
    EXPECT_FALSE(otherOrder);
#endif
}

} // namespace
