#include "workbench/items/rich_text_item.h"

#include "workbench/items/label_document.h"

#include <QAbstractTextDocumentLayout>
#include <QChildEvent>
#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>

using namespace Qt::StringLiterals;

namespace workbench {

RichTextItem::RichTextItem(KestTypes::ShapeType type)
    : Layers(type)
{
    // A text has a frame only if its label specifies one.
    setPenStyle(Qt::NoPen);
}

void RichTextItem::setText(const QString& text)
{
    prepareGeometryChange();
    m_text = text;
    if (hasDocument()) {
        document()->clear();
    }
    appearanceChanged();
}

// The first child is the text control, which creates the document next.
void RichTextItem::childEvent(QChildEvent* event)
{
    if (event->added() && m_blocker == nullptr) {
        m_blocker = new ResourceBlocker(*event->child());
        m_blocker->setParent(this);
    }
    Layers::childEvent(event);
}

void RichTextItem::adjustBoxSizeToContent(double width)
{
    const double bounded = boundedLength(width);
    if (!showsDocument()) {
        setBoxSize(measureText(plainText(bounded > 0.0), bounded));
        return;
    }
    const QSizeF size = layOutDocument(bounded);
    setBoxSize({bounded > 0.0 ? bounded : size.width(), size.height()});
}

QTextDocument* RichTextItem::existingDocument() const
{
    return m_blocker != nullptr ? &preparedDocument() : nullptr;
}

QTextDocument& RichTextItem::preparedDocument() const
{
    QTextDocument& content = *document();
    if (!m_isPrepared) {
        m_isPrepared = true;
        m_html.reset();
        prepareDocument(content);
        connect(&content, &QTextDocument::contentsChanged, this, [this] { m_html.reset(); });
    }
    return content;
}

bool RichTextItem::hasDocument() const
{
    const QTextDocument* content = existingDocument();
    return content != nullptr && !content->isEmpty();
}

bool RichTextItem::showsDocument() const
{
    return !showsSourceContent() && hasDocument();
}

// The document in the item's font. Created on demand: a document is laid out again for
// every font set, even if empty or if the font is unchanged, and most texts are plain.
QTextDocument& RichTextItem::labelDocument() const
{
    QTextDocument& content = preparedDocument();
    if (const QFont font = toFont(fontValues()); content.defaultFont() != font) {
        content.setDefaultFont(font);
    }
    return content;
}

PlainText RichTextItem::plainText(bool wraps) const
{
    return {shownContent(m_text), toFont(fontValues()), textStyleValues().alignment,
            textStyleValues().color, wraps};
}

// A width of 0 or less disables wrapping.
QSizeF RichTextItem::layOutDocument(double width) const
{
    QTextDocument& content = labelDocument();
    boundFontSizes(content);
    content.setTextWidth(width > 0.0 ? width : -1.0);
    return content.size();
}

double RichTextItem::overhang() const
{
    // Slanted and accented letters extend beyond their line's box.
    return Layers::overhang() + fontValues().pointSize;
}

void RichTextItem::paintContent(QPainter& painter)
{
    const QRectF box = contentRect();
    paintTextGround(painter, box, fillValues(), penValues());
    if (showsDocument()) {
        paintDocument(painter, box);
    } else {
        paintText(painter, plainText(true), box);
    }
}

void RichTextItem::paintDocument(QPainter& painter, const QRectF& box)
{
    const QSizeF size = layOutDocument(box.width());
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, textStyleValues().color);
    painter.translate(0.0,
                      verticalOffset(textStyleValues().alignment, box.height() - size.height()));
    labelDocument().documentLayout()->draw(&painter, context);
}

QPainterPath RichTextItem::paintedArea() const
{
    const QRectF box = contentRect();
    QPainterPath lines;
    if (showsDocument()) {
        lines = documentLines(box);
    } else {
        lines.addRect(textRect(plainText(true), box));
    }
    return textArea(lines, box, fillValues(), penValues());
}

QPainterPath RichTextItem::documentLines(const QRectF& box) const
{
    const QSizeF size = layOutDocument(box.width());
    const double top = verticalOffset(textStyleValues().alignment, box.height() - size.height());
    QPainterPath lines;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        const QPointF corner = document()->documentLayout()->blockBoundingRect(block).topLeft();
        const QTextLayout& layout = *block.layout();
        for (int line = 0; line < layout.lineCount(); ++line) {
            lines.addRect(
                layout.lineAt(line).naturalTextRect().translated(corner + QPointF(0.0, top)));
        }
    }
    return lines;
}

void RichTextItem::collect(ItemValues& values) const
{
    Layers::collect(values);
    values.text = TextValues{m_text, html()};
}

const QString& RichTextItem::html() const
{
    const bool isDocument = hasDocument(); // forgets the HTML if the document is new
    if (!m_html) {
        m_html = isDocument ? documentHtml(*document()) : QString();
    }
    return *m_html;
}

void RichTextItem::restore(const ItemValues& values)
{
    const TextValues text = values.text.value_or(TextValues());
    // Parsing is slow; a change of another value keeps the document.
    if (text != TextValues{m_text, html()}) {
        setText(text.text);
        if (!text.html.isEmpty()) {
            (void)preparedDocument(); // first: the HTML of a label may have margins of its own
            setHtml(text.html);
        }
    }
    Layers::restore(values);
}

} // namespace workbench
