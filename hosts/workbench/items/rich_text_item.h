#pragma once

#include "host/items/rich_text_item.h"
#include "workbench/items/text_layers.h"

namespace workbench {

/// A text with formats of its own inside, wrapped at the width of its box.
///
/// Its content is the document (QGraphicsTextItem::setHtml()), or the plain text of
/// setText() as long as the document is empty. The alignment places plain text in both
/// directions, and a document from top to bottom: its paragraphs have alignments of their
/// own. The document never loads anything that its HTML refers to.
class RichTextItem final : public TextLayers<::RichTextItem>
{
    using Layers = TextLayers<::RichTextItem>;

public:
    explicit RichTextItem(KestTypes::ShapeType type);

    void setText(const QString& text) override;
    /// Plain text takes no more of the width than it needs, so that further text can stand
    /// beside it; a document keeps the whole width for the alignment of its paragraphs.
    void adjustBoxSizeToContent(double width) override;

protected:
    void paintContent(QPainter& painter) override;
    [[nodiscard]] double overhang() const override;
    void collect(ItemValues& values) const override;
    void restore(const ItemValues& values) override;

private:
    [[nodiscard]] bool hasDocument() const;
    [[nodiscard]] bool showsDocument() const;
    [[nodiscard]] QTextDocument& labelDocument() const;
    [[nodiscard]] PlainText plainText(bool wraps) const;
    QSizeF layOutDocument(double width);
    void paintDocument(QPainter& painter, const QRectF& box);

    QString m_text;
};

} // namespace workbench
