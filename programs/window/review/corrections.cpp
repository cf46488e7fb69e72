#include "window/review/corrections.h"

#include "migration/model/loss_kinds.h"
#include "workbench/items/item_limits.h"
#include "workbench/items/label_document.h"
#include "workbench/items/units.h"

#include <QRegularExpression>
#include <QTextCharFormat>

#include <algorithm>
#include <cmath>
#include <functional>
#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

using migration::LossKind;
using workbench::ItemValues;

using workbench::PointsPerMillimeter;

bool isOneOf(const QString& code, std::initializer_list<LossKind> kinds)
{
    return std::any_of(kinds.begin(), kinds.end(),
                       [&code](LossKind kind) { return code == migration::lossCode(kind); });
}

QList<ItemChange> changed(const QList<workbench::CanvasItem*>& items,
                          const std::function<void(ItemValues&)>& change)
{
    QList<ItemChange> changes;
    for (workbench::CanvasItem* item : items) {
        const ItemValues before = item->values();
        ItemValues after = before;
        change(after);
        if (after != before) {
            changes.append({item, before, after});
        }
    }
    return changes;
}

QRegularExpression familyInHtml()
{
    return QRegularExpression(u"font-family:'([^']*)'"_s);
}

// Sizes in formatted texts, "font-size:12pt" or "font-size:12.5pt".
QString withScaledSizes(const QString& html, double factor)
{
    static const QRegularExpression pattern(u"font-size:([0-9.]+)pt"_s);
    QString result;
    qsizetype end = 0;
    for (auto match = pattern.globalMatch(html); match.hasNext();) {
        const QRegularExpressionMatch size = match.next();
        result += QStringView(html).mid(end, size.capturedStart(1) - end);
        result += QString::number(size.captured(1).toDouble() * factor, 'g', 4);
        end = size.capturedEnd(1);
    }
    return result.append(QStringView(html).mid(end));
}

void setColor(ItemValues& values, const QColor& color)
{
    if (values.text && !values.text->html.isEmpty()) {
        QTextCharFormat format;
        format.setForeground(color);
        values.text->html = workbench::formattedHtml(values.text->html, format);
    } else if (values.textStyle && values.text) {
        values.textStyle->color = color;
    } else if (values.barcode) {
        values.barcode->foreground = color;
    } else if (values.symbol) {
        values.symbol->foreground = color;
    } else if (values.fill && values.fill->filled && values.fill->style != Qt::NoBrush) {
        values.fill->color = color;
    } else if (values.pen) {
        values.pen->color = color;
    }
}

void scaleFonts(ItemValues& values, double factor)
{
    if (values.pen) {
        values.pen->width *= factor;
    }
    if (values.font) {
        values.font->pointSize =
            std::max(1, static_cast<int>(std::lround(values.font->pointSize * factor)));
    }
    if (values.text && !values.text->html.isEmpty()) {
        values.text->html = withScaledSizes(values.text->html, factor);
    }
}

} // namespace

QList<Correction> correctionsFor(const Issue& issue)
{
    QList<Correction> corrections;
    if (!issue.items.isEmpty()) {
        corrections.append(Correction::Delete);
    }
    if (isOneOf(issue.code, {LossKind::FontReplaced})) {
        corrections.append(Correction::ReplaceFont);
    }
    if (isOneOf(issue.code, {LossKind::TextColor, LossKind::FillSimplified})) {
        corrections.append(Correction::SetColor);
    }
    if (isOneOf(issue.code, {LossKind::MillimetersEnlarged, LossKind::PageSizeAssumed,
                             LossKind::UnitUnknown, LossKind::MixedUnits, LossKind::SizeLimited,
                             LossKind::OutsidePage, LossKind::OverPageEdge})) {
        corrections.append(Correction::Rescale);
    }
    if (isOneOf(issue.code, {LossKind::DatasourceUnbound, LossKind::DatabaseUnlinked,
                             LossKind::PlaceholderText})) {
        corrections.append(Correction::Bind);
    }
    return corrections;
}

QString familyOf(const ItemValues& values)
{
    if (values.text && !values.text->html.isEmpty()) {
        return familyInHtml().match(values.text->html).captured(1);
    }
    return values.font ? values.font->family : QString();
}

QList<ItemChange> withFont(const QList<workbench::CanvasItem*>& items, const QStringList& from,
                           const QString& to)
{
    // Characters that would end the name in a formatted text.
    const QString family = QString(to).remove(u'\'').remove(u'"').remove(u'<').remove(u'&');
    return changed(items, [&](ItemValues& values) {
        if (values.font && from.contains(values.font->family)) {
            values.font->family = family;
        }
        if (values.text) {
            for (const QString& old : from) {
                values.text->html.replace(u"font-family:'%1'"_s.arg(old),
                                          u"font-family:'%1'"_s.arg(family));
            }
        }
    });
}

QList<ItemChange> withColor(const QList<workbench::CanvasItem*>& items, const QColor& color)
{
    return changed(items, [&color](ItemValues& values) { setColor(values, color); });
}

QList<ItemChange> scaled(const QList<workbench::CanvasItem*>& items, double factor, bool withFonts)
{
    return changed(items, [&](ItemValues& values) {
        values.placement.position *= factor;
        values.box.size *= factor;
        if (values.corner && values.corner->radius) {
            *values.corner->radius *= factor;
        }
        if (values.textLabel) {
            values.textLabel->textBox *= factor;
        }
        if (values.line) {
            values.line->end *= factor;
        }
        if (withFonts) {
            scaleFonts(values, factor);
        }
    });
}

QList<ItemChange> bound(const QList<workbench::CanvasItem*>& items, int source)
{
    return changed(items, [source](ItemValues& values) {
        if (values.datasource) {
            values.datasource = workbench::DatasourceValues{source, {}};
        }
    });
}

std::optional<QSizeF> paperOf(const QString& text)
{
    static const QRegularExpression pattern(
        u"([0-9]+(?:[.,][0-9]+)?)\\s*[x×]\\s*([0-9]+(?:[.,][0-9]+)?)"_s);
    const QRegularExpressionMatch match = pattern.match(text);
    const auto points = [&match](int part) {
        return match.captured(part).replace(u',', u'.').toDouble() * PointsPerMillimeter;
    };
    const QSizeF size(points(1), points(2));
    const bool isPaper = size.width() >= 1.0 && size.height() >= 1.0 &&
                         std::max(size.width(), size.height()) <= workbench::MaximumLength;
    return match.hasMatch() && isPaper ? std::optional(size) : std::nullopt;
}

} // namespace window
