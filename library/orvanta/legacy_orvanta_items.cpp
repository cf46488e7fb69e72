#include "orvanta/legacy_orvanta.h"

#include "host/items/barcode_item.h"
#include "host/items/fillable_item.h"
#include "host/items/text_item.h"
#include "host/tal_canvas_model.h"
#include "messages/refusals.h"
#include "orvanta/control_properties.h"
#include "orvanta/created_item.h"
#include "orvanta/font.h"
#include "orvanta/shape_choice.h"
#include "orvanta/size_and_turn.h"

#include <utility>

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
    auto created = orvanta::createdItem<TextItem>(m_classFactory, type);
    if (!created) {
        logRefusal(refusals::ItemRefused,
                   QStringLiteral("a text, for which the host made no item"));
        return nullptr;
    }
    TextItem* item = orvanta::importedItem(*m_canvasModel, std::move(created));
    if (item == nullptr) {
        logRefusal(refusals::ItemRefused,
                   QStringLiteral("a text, which the host deleted when it got it"));
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
    // A scalable text fills its box: the stored size means nothing to it.
    if (!scalable) {
        item->setFontPointSize(orvanta::wholePoints(properties.fontSize));
    }
    return item;
}

FillableItem* LegacyOrvanta::buildShape(int shapeIndex, quint16 lineWidth, int sides,
                                        const ControlProperties& properties)
{
    const orvanta::ShapeChoice choice = orvanta::chooseShape(sides, shapeIndex);
    auto created = orvanta::createdItem<FillableItem>(m_classFactory, choice.type);
    auto* graphics = dynamic_cast<QGraphicsItem*>(created.get());
    if (graphics == nullptr) {
        logRefusal(refusals::ItemRefused,
                   QStringLiteral("a shape, for which the host made no item"));
        return nullptr;
    }
    FillableItem* item = orvanta::importedItem(*m_canvasModel, std::move(created));
    if (item == nullptr) {
        logRefusal(refusals::ItemRefused,
                   QStringLiteral("a shape, which the host deleted when it got it"));
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
    auto created = orvanta::createdItem<BarcodeItem>(m_classFactory, KestTypes::Barcode);
    if (!created) {
        logRefusal(refusals::ItemRefused,
                   QStringLiteral("a barcode, for which the host made no item"));
        return nullptr;
    }
    BarcodeItem* item = orvanta::importedItem(*m_canvasModel, std::move(created));
    if (item == nullptr) {
        logRefusal(refusals::ItemRefused,
                   QStringLiteral("a barcode, which the host deleted when it got it"));
        return nullptr;
    }
    const orvanta::DrawingColors colors = orvanta::drawingColors(properties);
    item->setBackgroundColor(colors.fill);
    item->setForegroundColor(colors.pen);
    orvanta::applySizeAndTurn(*item, properties);
    item->setPos(properties.bounds.topLeft());
    applyFont(*item, properties);
    item->setFontPointSize(orvanta::wholePoints(properties.fontSize));
    item->setBarcodeType(hostType);
    return item;
}
