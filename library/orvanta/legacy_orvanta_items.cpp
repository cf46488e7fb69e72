#include "orvanta/legacy_orvanta.h"

#include "building/item_creation.h"
#include "host/items/barcode_item.h"
#include "host/items/fillable_item.h"
#include "host/items/text_item.h"
#include "host/tal_canvas_model.h"
#include "messages/refusals.h"
#include "numeric/saturation.h"
#include "orvanta/control_properties.h"
#include "orvanta/shape_choice.h"
#include "orvanta/size_and_turn.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

using orvanta::ControlProperties;

namespace {

void applyFont(IFontItem& item, const ControlProperties& properties)
{
    item.setFontFamily(properties.fontFamily);
    item.setFontBold(properties.isBold());
    item.setFontItalic(properties.isItalic());
    item.setFontUnderline(properties.isUnderlined());
}

} // namespace

TextItem* LegacyOrvanta::buildText(bool scalable, const ControlProperties& properties)
{
    const auto type = scalable ? KestTypes::SimpleText : KestTypes::RichText;
    static_assert(KestTypes::RichText - 1 == KestTypes::SimpleText);
    auto created = building::createItem<TextItem>(m_classFactory, type);
    if (!created) {
        logRefusal(refusals::ItemRefused, u"a text, for which the host made no item"_s);
        return nullptr;
    }
    TextItem* item = building::handOver(*m_canvasModel, std::move(created));
    if (item == nullptr) {
        logRefusal(refusals::ItemRefused, u"a text, which the host deleted when it got it"_s);
        return nullptr;
    }
    const orvanta::DrawingColors colors = orvanta::drawingColors(properties);
    item->setPenColor(colors.pen);
    item->setFillColor(colors.fill);
    item->setTextColor(colors.pen);
    orvanta::applySizeAndTurn(*item, properties);
    item->setText(properties.text);
    item->setPos(properties.bounds.topLeft());
    applyFont(*item, properties);
    // A scalable text fills its box; its stored size has no effect.
    if (!scalable) {
        item->setFontPointSize(saturatedToInt(properties.fontSize));
    }
    return item;
}

FillableItem* LegacyOrvanta::buildShape(int shapeIndex, quint16 lineWidth, int sides,
                                        const ControlProperties& properties)
{
    const orvanta::ShapeChoice choice = orvanta::chooseShape(sides, shapeIndex);
    auto created = building::createItem<FillableItem>(m_classFactory, choice.type);
    auto* graphics = dynamic_cast<QGraphicsItem*>(created.get());
    if (graphics == nullptr) {
        logRefusal(refusals::ItemRefused, u"a shape, for which the host made no item"_s);
        return nullptr;
    }
    FillableItem* item = building::handOver(*m_canvasModel, std::move(created));
    if (item == nullptr) {
        logRefusal(refusals::ItemRefused, u"a shape, which the host deleted when it got it"_s);
        return nullptr;
    }
    ControlProperties turned = properties;
    turned.rotation += choice.turn;
    const orvanta::DrawingColors colors = orvanta::drawingColors(properties);
    item->setFillColor(orvanta::isOutline(shapeIndex) ? orvanta::colors::Transparent : colors.fill);
    item->setPenColor(colors.pen);
    item->setPenWidth(lineWidth);
    orvanta::applySizeAndTurn(*item, turned);
    graphics->setPos(properties.bounds.topLeft());
    return item;
}

BarcodeItem* LegacyOrvanta::buildBarcode(int hostType, const ControlProperties& properties)
{
    auto created = building::createItem<BarcodeItem>(m_classFactory, KestTypes::Barcode);
    if (!created) {
        logRefusal(refusals::ItemRefused, u"a barcode, for which the host made no item"_s);
        return nullptr;
    }
    BarcodeItem* item = building::handOver(*m_canvasModel, std::move(created));
    if (item == nullptr) {
        logRefusal(refusals::ItemRefused, u"a barcode, which the host deleted when it got it"_s);
        return nullptr;
    }
    const orvanta::DrawingColors colors = orvanta::drawingColors(properties);
    item->setBackgroundColor(colors.fill);
    item->setForegroundColor(colors.pen);
    orvanta::applySizeAndTurn(*item, properties);
    item->setPos(properties.bounds.topLeft());
    applyFont(*item, properties);
    item->setFontPointSize(saturatedToInt(properties.fontSize));
    item->setBarcodeType(hostType);
    return item;
}
