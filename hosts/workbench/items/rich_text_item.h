#pragma once

#include "host/items/rich_text_item.h"
#include "workbench/items/text_layers.h"

namespace workbench {

class ResourceBlocker;

/// A text with several formats, wrapped at the width of its box.
///
/// Its content is the document (QGraphicsTextItem::setHtml()), or the plain text of
/// setText() as long as there is no document or it is empty. The alignment applies to plain text in
/// both directions, and to a document vertically: its paragraphs have their own horizontal
/// alignment. The document never loads external resources.
class RichTextItem final : public TextLayers<::RichTextItem>
{
    using Layers = TextLayers<::RichTextItem>;

public:
    explicit RichTextItem(KestTypes::ShapeType type);

    void setText(const QString& text) override;
    /// Plain text uses only the width that it needs, so that other text can follow
    /// on its right; a document uses the full width, to align its paragraphs.
    void adjustBoxSizeToContent(double width) override;

protected:
    void childEvent(QChildEvent* event) override;
    void paintContent(QPainter& painter) override;
    [[nodiscard]] QPainterPath paintedArea() const override;
    [[nodiscard]] double overhang() const override;
    void collect(ItemValues& values) const override;
    void restore(const ItemValues& values) override;

private:
    /// The document; null as long as the item has only plain text. A document takes 10 kB, and a
    /// label can have a hundred thousand texts, most of them plain.
    [[nodiscard]] QTextDocument* existingDocument() const;
    /// The document, which is created if there is none.
    [[nodiscard]] QTextDocument& preparedDocument() const;
    [[nodiscard]] bool hasDocument() const;
    [[nodiscard]] bool showsDocument() const;
    [[nodiscard]] QTextDocument& labelDocument() const;
    [[nodiscard]] PlainText plainText(bool wraps) const;
    QSizeF layOutDocument(double width) const;
    [[nodiscard]] QPainterPath documentLines(const QRectF& box) const;
    void paintDocument(QPainter& painter, const QRectF& box);

    /// The document as HTML; empty without one.
    [[nodiscard]] const QString& html() const;

    QString m_text;
    mutable std::optional<QString> m_html; // of the document, made on first use
    ResourceBlocker* m_blocker = nullptr;  // of the document; null if there is none
    mutable bool m_isPrepared = false;     // the document
};

} // namespace workbench
