#include "workbench/items/simple_text_item.h"

#include <algorithm>

namespace workbench {

namespace {

constexpr signed char FixesWidth = 1;
constexpr signed char FixesHeight = 2;

} // namespace

SimpleTextItem::SimpleTextItem(KestTypes::ShapeType type)
    : Layers(type)
{
    // A text has a frame only if its label specifies one.
    setPenStyle(Qt::NoPen);
}

bool SimpleTextItem::fixesWidth() const
{
    return (m_label.limiting & FixesWidth) != 0;
}

bool SimpleTextItem::fixesHeight() const
{
    return (m_label.limiting & FixesHeight) != 0;
}

void SimpleTextItem::setItemSize(const QSizeF& size)
{
    m_label.textBox = boundedSize(size);
    Layers::setItemSize(size);
    fitBox();
}

void SimpleTextItem::setTextBoxSize(const QSizeF& size)
{
    setItemSize(size);
}

void SimpleTextItem::setText(const QString& text)
{
    m_text = text;
    appearanceChanged();
}

void SimpleTextItem::setOptionA(bool on)
{
    m_label.optionA = on;
}

void SimpleTextItem::setOptionB(bool on)
{
    m_label.optionB = on;
}

void SimpleTextItem::applyTextOptions()
{
    appearanceChanged();
}

void SimpleTextItem::importTextProperties(const QString& text, int fontSize, bool flag1, bool flag2,
                                          bool flag3, const QFlags<Qt::AlignmentFlag>& alignment)
{
    m_text = text;
    setFontBold(flag1);
    setFontItalic(flag2);
    setFontUnderline(flag3);
    setTextAlignment(alignment);
    setFontPointSize(fontSize);
}

void SimpleTextItem::setItemSizeLimiting(signed char mode)
{
    m_label.limiting = mode;
    appearanceChanged();
}

void SimpleTextItem::appearanceChanged()
{
    fitBox();
    Layers::appearanceChanged();
}

// The sides that are not fixed follow the text, once a font size is set.
void SimpleTextItem::fitBox()
{
    if (!fontValues().sized || (fixesWidth() && fixesHeight())) {
        return;
    }
    const QSizeF text = measureText(plainText(), m_label.textBox.width());
    setBoxSize({fixesWidth() ? m_label.textBox.width() : text.width(),
                fixesHeight() ? m_label.textBox.height() : text.height()});
}

PlainText SimpleTextItem::plainText() const
{
    return {shownContent(m_text), toFont(fontValues()), textStyleValues().alignment,
            textStyleValues().color, fontValues().sized && fixesWidth()};
}

double SimpleTextItem::overhang() const
{
    // Slanted and accented letters extend beyond their line's box.
    return Layers::overhang() + fontValues().pointSize;
}

void SimpleTextItem::paintContent(QPainter& painter)
{
    const QRectF box = contentRect();
    paintTextGround(painter, box, fillValues(), penValues());
    if (fontValues().sized) {
        paintText(painter, plainText(), box);
    } else {
        paintTextFilling(painter, plainText(), box);
    }
}

QPainterPath SimpleTextItem::paintedArea() const
{
    const QRectF box = contentRect();
    QPainterPath lines;
    lines.addRect(fontValues().sized ? textRect(plainText(), box)
                                     : fillingTextRect(plainText(), box));
    return textArea(lines, box, fillValues(), penValues());
}

void SimpleTextItem::collect(ItemValues& values) const
{
    Layers::collect(values);
    values.text = TextValues{m_text, {}};
    values.textLabel = m_label;
}

void SimpleTextItem::restore(const ItemValues& values)
{
    m_text = values.text.value_or(TextValues()).text;
    m_label = values.textLabel.value_or(TextLabelValues());
    m_label.textBox = boundedSize(m_label.textBox);
    Layers::restore(values);
    fitBox();
}

} // namespace workbench
