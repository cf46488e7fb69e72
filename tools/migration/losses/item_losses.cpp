#include "migration/losses/item_losses.h"

#include "host/facets/i_font_item.h"
#include "migration/model/item_class.h"
#include "migration/model/known_fonts.h"
#include "workbench/canvas/canvas.h"
#include "workbench/items/item_limits.h"
#include "workbench/items/shape_kinds.h"

#include <QCoreApplication>
#include <QGraphicsItem>
#include <QGraphicsTextItem>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTextBlock>
#include <QTextDocument>

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
    QString shown =
        values.text->html.isEmpty() ? values.text->text : values.text->html.mid(body).remove(tags);
    return shown.remove(QChar(0x200B)).trimmed().isEmpty();
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

QPolygonF outlineOnPage(const workbench::CanvasItem& item, const ItemValues& values)
{
    if (values.line) {
        return item.graphicsItem()->mapToScene(QPolygonF({QPointF(0.0, 0.0), values.line->end}));
    }
    const QRectF box(QPointF(0.0, 0.0), values.box.size);
    return item.graphicsItem()->mapToScene(
        QPolygonF({box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()}));
}

// Black where no color is given.
QColor textColorOf(const ItemValues& values)
{
    if (values.text->html.isEmpty()) {
        return values.textStyle ? values.textStyle->color : QColor(Qt::black);
    }
    static const QRegularExpression pattern(u"[ ;\"]color:(#[0-9a-fA-F]{6})"_s);
    QStringList colors;
    for (auto match = pattern.globalMatch(values.text->html); match.hasNext();) {
        colors.append(match.next().captured(1));
    }
    colors.removeDuplicates();
    if (colors.size() > 1) {
        return {};
    }
    return colors.isEmpty() ? QColor(Qt::black) : QColor(colors.constFirst());
}

const QTextDocument* documentOf(const workbench::CanvasItem& item)
{
    const auto* const text = dynamic_cast<const QGraphicsTextItem*>(item.graphicsItem());
    return text != nullptr ? text->document() : nullptr;
}

// Behind the letters: their own, or that of their paragraph. Letters without one are on what is
// under the item.
QColor textGroundOf(const workbench::CanvasItem& item)
{
    const QTextDocument* const document = documentOf(item);
    QSet<QRgb> grounds;
    for (QTextBlock block = document != nullptr ? document->begin() : QTextBlock(); block.isValid();
         block = block.next()) {
        for (auto run = block.begin(); !run.atEnd(); ++run) {
            if (run.fragment().text().trimmed().isEmpty()) {
                continue;
            }
            const QBrush own = run.fragment().charFormat().background();
            const QBrush ground =
                own.style() != Qt::NoBrush ? own : block.blockFormat().background();
            grounds.insert(ground.style() != Qt::NoBrush ? ground.color().rgba() : 0);
        }
    }
    return grounds.size() == 1 && *grounds.begin() != 0 ? QColor::fromRgba(*grounds.begin())
                                                        : QColor();
}

QString shownText(const workbench::CanvasItem& item, const ItemValues& values)
{
    const QTextDocument* const document = documentOf(item);
    // Invisible pictures keep the room of objects in a text.
    const QString text = document != nullptr
                             ? document->toPlainText().remove(QChar::ObjectReplacementCharacter)
                             : QString();
    return text.isEmpty() ? values.text->text : text;
}

void lookAtFill(const ItemValues& values, ItemFacts& item)
{
    if (values.picture) {
        item.isOpaque = !values.picture->image.hasAlphaChannel();
    }
    if (!values.fill || item.objectClass != ObjectClass::Shape) {
        return;
    }
    const bool isSolid = values.fill->style == Qt::SolidPattern;
    item.isFilled =
        values.fill->filled && values.fill->style != Qt::NoBrush && values.fill->color.alpha() > 0;
    item.isOpaque = item.isFilled && values.fill->color.alpha() == 255 &&
                    (isSolid || values.fill->style >= Qt::LinearGradientPattern);
    item.fill = item.isFilled && isSolid ? values.fill->color : QColor();
}

void checkItemAppearance(const workbench::CanvasItem& item, const ItemValues& values,
                         ItemFacts& facts)
{
    facts.outline = outlineOnPage(item, values);
    lookAtFill(values, facts);
    if (values.text && facts.hasContent) {
        facts.text = shownText(item, values);
        facts.families = familiesOf(values);
        facts.isFormatted = !values.text->html.isEmpty();
        facts.textColor = textColorOf(values);
        facts.textGround = textGroundOf(item);
    } else if (values.barcode) {
        facts.families = familiesOf(values);
    }
    if (values.pen && values.pen->style != Qt::NoPen) {
        facts.penWidth = values.pen->width;
    }
}

// An empty rectangle is inside if its corner is.
bool touches(const QRectF& page, const QRectF& box)
{
    return box.right() >= page.left() && box.left() <= page.right() && box.bottom() >= page.top() &&
           box.top() <= page.bottom();
}

void checkItemPlace(const QRectF& page, const QRectF& box, ItemFacts& item)
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
    checkItemAppearance(item, values, itemFacts);
    const bool isText = itemFacts.objectClass == ObjectClass::Text;
    if (itemFacts.hasContent && (isText || !showsNothing(values))) {
        checkItemPlace(page, itemFacts.outline.boundingRect(), itemFacts);
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
    facts.pageSize = page;
    QHash<const workbench::CanvasItem*, int> levels;
    for (const workbench::CanvasItem* item : canvas.itemsFromBottom()) {
        levels.insert(item, static_cast<int>(levels.size()));
    }
    for (const workbench::CanvasItem* item : canvas.items()) {
        lookAtItem(*item, canvas.pageRect(), blankTextsCount, facts);
        facts.items.last().level = levels.value(item);
    }
    return facts;
}

void noteMissingText(const QString& text, Tally& tally)
{
    ++tally.count;
    tally.addDetail(text + u" → "_s);
}

void findReplacedFonts(LabelFacts& facts)
{
    for (ItemFacts& item : facts.items) {
        for (const QString& family : item.hasContent ? item.families : QStringList()) {
            const QString seen = familySeen(family);
            if (seen == family) {
                continue;
            }
            item.changes.add(LossKind::FontReplaced);
            // The census reports the name of the original family.
            const QString requestedFamily =
                family == FallbackFontFamily
                    ? QCoreApplication::translate("migration::ItemLosses", "unknown")
                    : family;
            facts.tallies[LossKind::FontReplaced].addDetail(requestedFamily + u" → "_s + seen);
        }
    }
}

} // namespace migration
