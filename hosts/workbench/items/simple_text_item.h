#pragma once

#include "host/items/simple_text_item.h"
#include "workbench/items/text_layers.h"

namespace workbench {

/// A text in a single format.
///
/// With a font size, the text has that size, and the sides of its box that are not
/// fixed follow the text. Without one it is scaled to fill its box.
///
/// The two options have no effect; the item only stores them.
class SimpleTextItem final : public TextLayers<::SimpleTextItem>
{
    using Layers = TextLayers<::SimpleTextItem>;

public:
    explicit SimpleTextItem(KestTypes::ShapeType type);

    void setItemSize(const QSizeF& size) override;
    void setText(const QString& text) override;
    void setTextBoxSize(const QSizeF& size) override;
    void setOptionA(bool on) override;
    void setOptionB(bool on) override;
    void applyTextOptions() override;
    void importTextProperties(const QString& text, int fontSize, bool flag1, bool flag2, bool flag3,
                              const QFlags<Qt::AlignmentFlag>& alignment) override;
    void setItemSizeLimiting(signed char mode) override;

protected:
    void paintContent(QPainter& painter) override;
    [[nodiscard]] QPainterPath paintedArea() const override;
    [[nodiscard]] double overhang() const override;
    void appearanceChanged() override;
    void collect(ItemValues& values) const override;
    void restore(const ItemValues& values) override;

private:
    [[nodiscard]] bool fixesWidth() const;
    [[nodiscard]] bool fixesHeight() const;
    [[nodiscard]] PlainText plainText() const;
    void fitBox();

    QString m_text;
    TextLabelValues m_label;
};

} // namespace workbench
