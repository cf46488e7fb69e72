// Frames: text boxes and pictures of the package.

#include "opendocument/item_builder.h"
#include "opendocument/log.h"
#include "opendocument/open_office_reader.h"

#include "host/items/fillable_item.h"
#include "host/items/pix_map_item.h"
#include "host/items/symbol_item.h"
#include "host/services/symbol_creator.h"
#include "host/tal_canvas_model.h"
#include "messages/refusals.h"

#include <QFileInfo>

using namespace opendocument;
using namespace Qt::StringLiterals;

namespace {

// The alternative pictures of a frame, by suffix; the last one of a suffix wins.
QMap<QString, QString> imagesBySuffix(const xmllimits::Element& frame)
{
    const QString tag = u"draw:image"_s;
    QMap<QString, QString> images;
    for (xmllimits::Element image = frame.firstChildElement(tag); !image.isNull();
         image = image.nextSiblingElement(tag)) {
        const QString name = image.attribute(u"xlink:href"_s);
        images.insert(QFileInfo(name).completeSuffix().toLower(), name);
    }
    return images;
}

// The rectangle for a symbol; empty, for the symbol's own size, if the frame
// does not give both sides.
QRectF symbolTarget(const QSizeF& size)
{
    return size.isEmpty() ? QRectF() : QRectF(QPointF(), size);
}

} // namespace

FramePlacement OpenOfficeReader::readFrame(const xmllimits::Element& element)
{
    Geometry geometry;
    readGeometry(element, m_unitFactor, geometry);
    const OOGraphicStyle style = graphicStyleOf(element);
    const bool isImage = element.firstChildElement().tagName() == "draw:image"_L1;
    const bool isPlaced =
        isImage ? readImage(element, geometry) : readTextBox(element, style, geometry);
    if (!isPlaced) {
        return {};
    }
    // Pictures may have no position; text that flows around them starts at the left.
    const double x = geometry.hasX() ? geometry.position.x() : 0.0;
    return {x, geometry.size.height(), geometry.size.width(), geometry.z, style.wrap};
}

bool OpenOfficeReader::readTextBox(const xmllimits::Element& frame, OOGraphicStyle style,
                                   Geometry& geometry)
{
    const xmllimits::Element box = frame.firstChildElement(u"draw:text-box"_s);
    readLength(box, u"fo:min-height"_s, m_unitFactor, geometry.size.rheight());
    NewShape shape = makeRectangle(box, false);
    if (!shape) {
        return false;
    }
    if (geometry.hasZ()) {
        shape.graphics->setZValue(geometry.z);
    }
    if (!handOver(*m_canvasModel, std::move(shape.owned))) {
        return false;
    }
    if (!geometry.hasZ()) {
        geometry.z = shape.graphics->zValue();
    }
    applyShapeStyle(*shape.fillable, style, geometry);
    geometry.position = textBoxPosition(frame, style, geometry);
    setPosition(*shape.graphics, geometry.position);
    if (!box.firstChildElement(u"text:p"_s).isNull()) {
        buildRichText(box, geometry);
    }
    return true;
}

// Missing coordinates of the frame are those of its style and the text flow.
QPointF OpenOfficeReader::textBoxPosition(const xmllimits::Element& frame,
                                          const OOGraphicStyle& style,
                                          const Geometry& geometry) const
{
    QPointF position = geometry.position;
    const double width = geometry.size.width();
    if (!geometry.hasX()) {
        position.setX(style.margins.left);
        if (style.horizontalPos == Qt::AlignRight) {
            position.setX(m_pageWidth - width - style.margins.right);
        } else if (style.horizontalPos == Qt::AlignHCenter) {
            position.setX(centeredX(style.margins, m_pageWidth, width));
        }
    }
    if (!geometry.hasY()) {
        const bool isInFlow =
            style.anchorParagraph || frame.attribute(u"text:anchor-type"_s) == "paragraph"_L1;
        position.setY((isInFlow ? m_flowOffsetY : 0.0) + style.margins.above);
    }
    return position;
}

bool OpenOfficeReader::readImage(const xmllimits::Element& frame, Geometry& geometry)
{
    const QMap<QString, QString> images = imagesBySuffix(frame);
    const auto svg = images.constFind(u"svg"_s);
    return svg != images.constEnd() ? importSymbol(*svg, geometry)
                                    : importPicture(images.first(), geometry);
}

bool OpenOfficeReader::importSymbol(const QString& name, Geometry& geometry)
{
    const QByteArray svg = m_pictures->bytes(name);
    if (svg.isEmpty()) {
        return false;
    }
    if (!m_symbolCreator) {
        m_symbolCreator = std::make_unique<SymbolCreator>(nullptr);
    }
    m_symbolCreator->loadImportedSvg(svg);
    if (!m_symbolCreator->convertSvgToSymbol(symbolTarget(geometry.size))) {
        logDebug("open_office_reader_frames", __LINE__, Q_FUNC_INFO,
                 u"The drawing %1 cannot be converted"_s.arg(name),
                 refusals::PackageDrawingUnreadable);
        return false;
    }
    const QByteArray data = m_symbolCreator->getSymbolData();
    NewItem<SymbolItem> symbol = makeItem<SymbolItem>(m_classFactory, KestTypes::Symbol);
    if (!symbol) {
        return false;
    }
    symbol->loadItemFromData(data);
    placeImage(std::move(symbol.owned), *symbol.item, geometry);
    return true;
}

bool OpenOfficeReader::importPicture(const QString& name, Geometry& geometry)
{
    const QPixmap pixmap = m_pictures->pixmap(name);
    if (pixmap.isNull()) {
        return false;
    }
    NewItem<PixMapItem> picture = makeItem<PixMapItem>(m_classFactory, KestTypes::Picture);
    if (!picture) {
        return false;
    }
    picture->pixmapImportActions(pixmap);
    placeImage(std::move(picture.owned), *picture.item, geometry);
    return true;
}

void OpenOfficeReader::placeImage(std::unique_ptr<Item> owned, QGraphicsItem& graphics,
                                  Geometry& geometry)
{
    completeSize(*owned, geometry.size);
    owned->setItemSize(geometry.size);
    setPosition(graphics, geometry.position);
    if (geometry.hasZ()) {
        graphics.setZValue(geometry.z);
    }
    if (geometry.hasRotation()) {
        owned->setItemRotation(geometry.rotation);
    }
    const bool isKept = handOver(*m_canvasModel, std::move(owned));
    if (isKept && !geometry.hasZ()) {
        geometry.z = graphics.zValue();
    }
}
