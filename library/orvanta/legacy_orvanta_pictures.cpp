#include "orvanta/legacy_orvanta.h"

#include "building/item_creation.h"
#include "host/items/pix_map_item.h"
#include "host/items/symbol_item.h"
#include "host/services/symbol_creator.h"
#include "host/tal_canvas_model.h"
#include "messages/refusals.h"
#include "orvanta/control_properties.h"
#include "orvanta/picture_content.h"
#include "orvanta/raster_picture.h"
#include "orvanta/size_and_turn.h"

#include <QPixmap>

#include <utility>

using namespace Qt::Literals::StringLiterals;

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
    auto created = building::createItem<SymbolItem>(m_classFactory, KestTypes::Symbol);
    if (!created) {
        logRefusal(refusals::ItemRefused, u"a symbol, for which the host made no item"_s);
        return nullptr;
    }
    created->loadItemFromData(symbol);
    if (!hasSize(*created)) {
        return nullptr;
    }
    const orvanta::DrawingColors colors = orvanta::drawingColors(properties);
    created->setForegroundColor(colors.pen);
    created->setFillColor(colors.fill);
    SymbolItem* item = building::handOver(*m_canvasModel, std::move(created));
    if (item == nullptr) {
        logRefusal(refusals::ItemRefused, u"a symbol, which the host deleted when it got it"_s);
        return nullptr;
    }
    orvanta::applySizeAndTurn(*item, properties);
    item->setPos(properties.bounds.topLeft());
    return item;
}

QGraphicsItem* LegacyOrvanta::buildPixmap(const ControlProperties& properties,
                                          const QByteArray& bytes)
{
    auto created = building::createItem<PixMapItem>(m_classFactory, KestTypes::Picture);
    if (!created) {
        logRefusal(refusals::ItemRefused, u"a picture, for which the host made no item"_s);
        return nullptr;
    }
    const orvanta::RasterPicture picture = orvanta::decodeRasterPicture(bytes, m_pixelsLeft);
    if (!picture.refusal.isEmpty()) {
        logRefusal(picture.refusalCode, picture.refusal);
    }
    m_pixelsLeft -= orvanta::pixelCount(picture.image.size());
    // If the picture could not be decoded, an empty item keeps its place.
    created->pixmapImportActions(QPixmap::fromImage(picture.image));
    PixMapItem* item = building::handOver(*m_canvasModel, std::move(created));
    if (item == nullptr) {
        logRefusal(refusals::ItemRefused, u"a picture, which the host deleted when it got it"_s);
        return nullptr;
    }
    orvanta::applySizeAndTurn(*item, properties);
    item->setPos(properties.bounds.topLeft());
    return item;
}
