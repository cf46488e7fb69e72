// Fonts, colors, fills and pens that styles ask for.

#include "migration/census/open_document_geometry.h"
#include "migration/census/open_document_styles.h"

namespace migration {

using namespace Qt::StringLiterals;

namespace {

// Of a fill whose color no style gives, as office programs show it.
constexpr QColor DefaultFillColor(0x99, 0xcc, 0xff);

} // namespace

// An empty name, or one that is not defined, has no style of its own.
QString StyleBook::firstOf(QString Style::*value, const QString& text, const QString& paragraph,
                           const QString& shape) const
{
    for (const QString& name : {text, paragraph}) {
        const auto found = m_texts.constFind(name);
        if (found != m_texts.constEnd() && !((*found).*value).isEmpty()) {
            return (*found).*value;
        }
    }
    const QString ofShape = shape.isNull() ? QString() : shapeValue(value, shape);
    return ofShape.isEmpty() ? m_defaultText.*value : ofShape;
}

QString StyleBook::shapeValue(QString Style::*value, const QString& style) const
{
    return shapeStyle(style).*value;
}

QString StyleBook::familyOf(const QString& text, const QString& paragraph,
                            const QString& shape) const
{
    return firstOf(&Style::font, text, paragraph, shape);
}

QColor StyleBook::colorOf(const QString& text, const QString& paragraph, const QString& shape) const
{
    const QString color = firstOf(&Style::color, text, paragraph, shape);
    return color == AutomaticColor ? QColor() : QColor(color);
}

void StyleBook::describeShape(const QString& style, bool isInText, bool isFrame,
                              Appearance& appearance) const
{
    const QString color = shapeValue(&Style::fillColor, style);
    const QColor background(shapeValue(&Style::background, style));
    QString fill = shapeValue(&Style::fill, style);
    if (fill.isEmpty() && !background.isValid() && !style.isEmpty() && !isFrame) {
        fill = u"solid"_s;
        appearance.fill = color.isEmpty() ? DefaultFillColor : QColor(color);
    } else if (fill == "solid"_L1) {
        appearance.fill = QColor(color);
    } else if (fill.isEmpty() && background.isValid()) {
        appearance.fill = background;
    }
    if (!fill.isEmpty() || background.isValid() || (isInText && isFrame)) {
        const bool isSeen = fill != "none"_L1 && shapeValue(&Style::opacity, style) != "0%"_L1;
        appearance.isFilled = background.isValid() || (!fill.isEmpty() && isSeen);
    }
    const QString stroke = shapeValue(&Style::stroke, style);
    if (stroke == "solid"_L1 || stroke == "dash"_L1) {
        appearance.penWidth = lengthInPoints(shapeValue(&Style::strokeWidth, style)).value_or(0.0);
    }
    const QString wrap = wrapOf(style);
    appearance.mayOverlap = !isInText || wrap == "run-through"_L1 || wrap == "dynamic"_L1;
    appearance.grows = shapeValue(&Style::growsHeight, style) == "true"_L1;
}

bool StyleBook::hasTabStops(const QString& style) const
{
    return textStyle(style).hasTabStops;
}

void StyleBook::takeCell(const QXmlStreamAttributes& attributes)
{
    CellBorders borders;
    for (const auto side :
         {"fo:border-top"_L1, "fo:border-left"_L1, "fo:border-bottom"_L1, "fo:border-right"_L1}) {
        const QStringView border = attributes.hasAttribute(side) ? attributes.value(side)
                                                                 : attributes.value("fo:border"_L1);
        const bool isDrawn =
            !border.isEmpty() && border != "none"_L1 && !border.contains("hidden"_L1);
        borders.areDrawn |= isDrawn;
        borders.areOther |=
            isDrawn && !border.contains("solid"_L1) && !border.contains("double"_L1);
    }
    noteCellEffect(u"style:writing-mode"_s,
                   isVerticalMode(attributes.value("style:writing-mode"_L1)) ||
                       isVerticalMode(attributes.value("loext:writing-mode"_L1)) ||
                       isNonZero(attributes.value("style:rotation-angle"_L1).toString()));
    m_cells.insert(m_cellName, borders);
}

void StyleBook::noteCellEffect(const QString& effect, bool isThere)
{
    if (isThere) {
        m_cellEffects[m_cellName].append(effect);
    }
}

bool StyleBook::numbersHeading(const QString& style, int level) const
{
    return m_numberedLevels.contains(level) && !textStyle(style).hasNoNumbers;
}

// A style inherits the master page of its parent, unless it states one, which may be empty.
void StyleBook::takeMasterPage(const QString& family, const QString& name, const QString& parent,
                               const QXmlStreamAttributes& attributes)
{
    const QString page = attributes.hasAttribute("style:master-page-name"_L1)
                             ? attributes.value("style:master-page-name"_L1).toString()
                             : masterPageOf(family, parent);
    if (!page.isEmpty()) {
        m_masterPages.insert(family + u'/' + name, page);
    }
}

QString StyleBook::masterPageOf(const QString& family, const QString& style) const
{
    return m_masterPages.value(family + u'/' + style);
}

bool StyleBook::sizesText(const QString& style) const
{
    return textStyle(style).isSized;
}

bool StyleBook::sizesShapeText(const QString& style) const
{
    return shapeStyle(style).isSized;
}

} // namespace migration
