#include "migration/losses/item_losses.h"

#include "host/facets/i_font_item.h"
#include "migration/model/item_class.h"
#include "migration/model/known_fonts.h"
#include "workbench/canvas/canvas.h"
#include "workbench/items/item_limits.h"
#include "workbench/items/shape_kinds.h"

#include <QCoreApplication>
#include <QGraphicsItem>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace migration {

namespace {

using workbench::ItemValues;

// Points by which an item may reach beyond the page before it is worth a word.
constexpr double EdgeTolerance = 1.0;

QStringList familiesOfHtml(const QString& html)
{
    static const QRegularExpression pattern(u"font-family:'([^']*)'"_s);
    QStringList families;
    for (auto match = pattern.globalMatch(html); match.hasNext();) {
        families.append(match.next().captured(1));
    }
    families.removeDuplicates();
    return families;
}

bool isBlankText(const ItemValues& values)
{
    if (!values.text) {
        return false;
    }
    static const QRegularExpression tags(u"<[^>]*>"_s);
    const qsizetype body = values.text->html.indexOf(QLatin1String("<body"));
    const QString shown =
        values.text->html.isEmpty() ? values.text->text : values.text->html.mid(body).remove(tags);
    return shown.trimmed().isEmpty();
}

bool showsNothing(const ItemValues& values)
{
    return values.pen && values.pen->style == Qt::NoPen && values.fill &&
           (values.fill->style == Qt::NoBrush || !values.fill->filled ||
            values.fill->color.alpha() == 0);
}

// A barcode without a font uses one of its own.
QStringList familiesOf(const ItemValues& values)
{
    QStringList families;
    if (values.text && !values.text->html.isEmpty()) {
        families = familiesOfHtml(values.text->html);
    } else if (values.font) {
        families.append(values.font->family);
    }
    families.removeAll(QString());
    return families;
}

void lookAtFonts(const ItemValues& values, ItemFacts& item, LabelFacts& facts)
{
    for (const QString& family : familiesOf(values)) {
        const QString seen = familySeen(family);
        if (seen == family) {
            continue;
        }
        item.changes.add(LossKind::FontReplaced);
        // The census reports the name of the original family.
        const QString asked = family == FallbackFontFamily
                                  ? QCoreApplication::translate("migration::ItemLosses", "unknown")
                                  : family;
        facts.tallies[LossKind::FontReplaced].addDetail(asked + u" → "_s + seen);
    }
}

QRectF boxOnPage(const workbench::CanvasItem& item, const ItemValues& values)
{
    const QRectF box = values.line ? QRectF(QPointF(0.0, 0.0), values.line->end).normalized()
                                   : QRectF(QPointF(0.0, 0.0), values.box.size);
    return item.graphicsItem()->mapRectToScene(box);
}

// An empty rectangle lies inside when its corner does.
bool touches(const QRectF& page, const QRectF& box)
{
    return box.right() >= page.left() && box.left() <= page.right() && box.bottom() >= page.top() &&
           box.top() <= page.bottom();
}

void lookAtPlace(const QRectF& page, const QRectF& box, ItemFacts& item)
{
    if (!touches(page, box)) {
        item.changes.add(LossKind::OutsidePage);
    } else if (!page.adjusted(-EdgeTolerance, -EdgeTolerance, EdgeTolerance, EdgeTolerance)
                    .contains(box) &&
               !box.isEmpty()) {
        item.changes.add(LossKind::OverPageEdge);
    }
}

bool isLimited(const ItemValues& values)
{
    const QPointF position = values.placement.position;
    const bool isFar = std::abs(position.x()) >= workbench::MaximumCoordinate ||
                       std::abs(position.y()) >= workbench::MaximumCoordinate;
    const bool isLong = values.box.size.width() >= workbench::MaximumLength ||
                        values.box.size.height() >= workbench::MaximumLength;
    return isFar || isLong || (values.font && values.font->pointSize > workbench::MaximumFontSize);
}

void lookAtItem(const workbench::CanvasItem& item, const QRectF& page, bool blankTextsCount,
                LabelFacts& facts)
{
    const ItemValues values = item.values();
    ItemFacts itemFacts{.kind = workbench::shapeCode(values.type),
                        .objectClass = classOfItem(values.type)};
    const bool isEmptyPicture = values.picture && values.picture->image.isNull();
    itemFacts.hasContent = !isEmptyPicture && (blankTextsCount || !isBlankText(values));
    itemFacts.isBound = values.datasource && values.datasource->id >= 0;
    itemFacts.symbology = values.barcode ? values.barcode->symbology : 0;
    if (itemFacts.hasContent && !showsNothing(values)) {
        lookAtPlace(page, boxOnPage(item, values), itemFacts);
    } else if (itemFacts.hasContent && itemFacts.objectClass == ObjectClass::Text) {
        lookAtPlace(page, boxOnPage(item, values), itemFacts);
    }
    if (itemFacts.hasContent) {
        lookAtFonts(values, itemFacts, facts);
    }
    if (isLimited(values)) {
        itemFacts.changes.add(LossKind::SizeLimited);
    }
    const QString problem = item.issue();
    if (!problem.isEmpty()) {
        itemFacts.changes.add(LossKind::BarcodeNotEncodable);
        facts.tallies[LossKind::BarcodeNotEncodable].addDetail(problem);
    }
    facts.items.append(itemFacts);
}

} // namespace

LabelFacts lookAtItems(const workbench::Canvas& canvas, bool blankTextsCount)
{
    LabelFacts facts;
    const QSizeF page = canvas.page().size;
    if (std::max(page.width(), page.height()) >= workbench::MaximumLength) {
        facts.pageChanges.add(LossKind::SizeLimited);
    }
    for (const workbench::CanvasItem* item : canvas.items()) {
        lookAtItem(*item, canvas.pageRect(), blankTextsCount, facts);
    }
    return facts;
}

} // namespace migration
