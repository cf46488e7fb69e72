#include "orvanta/legacy_orvanta.h"

#include "host/items/pix_map_item.h"
#include "host/items/symbol_item.h"
#include "host/services/symbol_creator.h"
#include "host/tal_canvas_model.h"
#include "messages/refusals.h"
#include "orvanta/control_properties.h"
#include "orvanta/created_item.h"
#include "orvanta/picture_content.h"
#include "orvanta/raster_picture.h"
#include "orvanta/size_and_turn.h"

#include <QPixmap>

#include <utility>

using orvanta::ControlProperties;

namespace {

bool hasSize(const Item& item)
{
    const QSizeF size = item.getItemSize();
    return size.width() > 0.0 && size.height() > 0.0;
}

} // namespace

QGraphicsItem* LegacyOrvanta::buildImage(const ControlProperties& properties,
                                         const QByteArray& bytes)
{
    const QByteArray picture = orvanta::withoutByteOrderMark(bytes);
    return orvanta::isSvg(picture) ? buildSymbol(properties, orvanta::cleanedSvg(picture))
                                   : buildPixmap(properties, picture);
}

QGraphicsItem* LegacyOrvanta::buildSymbol(const ControlProperties& properties,
                                          const QByteArray& svg)
{
    if (!m_symbolCreator) {
        m_symbolCreator = std::make_unique<SymbolCreator>(nullptr);
    }
    m_symbolCreator->loadImportedSvg(svg);
    if (!m_symbolCreator->convertSvgToSymbol(QRectF())) {
        return nullptr;
    }
    const QByteArray symbol = m_symbolCreator->getSymbolData();
    auto created = orvanta::createdItem<SymbolItem>(m_classFactory, KestTypes::Symbol);
    if (!created) {
        logRefusal(refusals::ItemRefused,
                   QStringLiteral("a symbol, for which the host made no item"));
        return nullptr;
    }
    created->loadItemFromData(symbol);
    if (!hasSize(*created)) {
        return nullptr;
    }
    const orvanta::DrawingColors colors = orvanta::drawingColors(properties);
    created->setForegroundColor(colors.pen);
    created->setFillColor(colors.fill);
    SymbolItem* item = orvanta::importedItem(*m_canvasModel, std::move(created));
    if (item == nullptr) {
        logRefusal(refusals::ItemRefused,
                   QStringLiteral("a symbol, which the host deleted when it got it"));
        return nullptr;
    }
    orvanta::applySizeAndTurn(*item, properties);
    item->setPos(properties.bounds.topLeft());
    return item;
}

QGraphicsItem* LegacyOrvanta::buildPixmap(const ControlProperties& properties,
                                          const QByteArray& bytes)
{
    auto created = orvanta::createdItem<PixMapItem>(m_classFactory, KestTypes::Picture);
    if (!created) {
        logRefusal(refusals::ItemRefused,
                   QStringLiteral("a picture, for which the host made no item"));
        return nullptr;
    }
    const orvanta::RasterPicture picture = orvanta::decodeRasterPicture(bytes, m_pixelsLeft);
    if (!picture.refusal.isEmpty()) {
        logRefusal(picture.refusalCode, picture.refusal);
    }
    m_pixelsLeft -= orvanta::pixelCount(picture.image.size());
    // A picture that could not be loaded keeps its place on the label.
    created->pixmapImportActions(QPixmap::fromImage(picture.image));
    PixMapItem* item = orvanta::importedItem(*m_canvasModel, std::move(created));
    if (item == nullptr) {
        logRefusal(refusals::ItemRefused,
                   QStringLiteral("a picture, which the host deleted when it got it"));
        return nullptr;
    }
    orvanta::applySizeAndTurn(*item, properties);
    item->setPos(properties.bounds.topLeft());
    return item;
}
