#pragma once

#include "workbench/items/item_limits.h"
#include "workbench/items/item_values.h"

#include <QStringList>

#include <algorithm>
#include <optional>

namespace workbench {

// The layers on top of BoxLayer, one for each facet that several item classes share.

/// PenItem.
template <class Base>
class PenLayer : public Base
{
public:
    using Base::Base;

    void setPenColor(const QColor& color) override
    {
        if (color.isValid()) {
            change(m_pen.color, color);
        }
    }
    void setPenWidth(quint16 width) override { change(m_pen.width, double(width)); }
    void setPenStyle(int style) override { change(m_pen.style, style); }
    void setCapStyle(int style) override { change(m_pen.cap, style); }
    void setJoinStyle(int style) override { change(m_pen.join, style); }

protected:
    [[nodiscard]] const PenValues& penValues() const { return m_pen; }

    /// A mitered corner extends several pen widths beyond the outline.
    [[nodiscard]] double overhang() const override { return 4.0 * m_pen.width + 1.0; }

    void collect(ItemValues& values) const override
    {
        Base::collect(values);
        values.pen = m_pen;
    }

    void restore(const ItemValues& values) override
    {
        Base::restore(values);
        PenValues pen = values.pen.value_or(PenValues());
        pen.width = std::clamp(boundedLength(pen.width), 0.0, MaximumPenWidth);
        change(m_pen, pen);
    }

private:
    template <class Value>
    void change(Value& member, const Value& value)
    {
        this->prepareGeometryChange();
        member = value;
        this->appearanceChanged();
    }

    PenValues m_pen;
};

/// FillColorItem and IBrushItem.
template <class Base>
class FillLayer : public Base
{
public:
    using Base::Base;

    void setFillColor(const QColor& color) override
    {
        if (color.isValid()) {
            m_fill.color = color;
            this->appearanceChanged();
        }
    }

    void setFilled(bool filled) override
    {
        m_fill.filled = filled;
        this->appearanceChanged();
    }

    void setBrushStyle(int style) override
    {
        m_fill.style = style;
        this->appearanceChanged();
    }

protected:
    [[nodiscard]] const FillValues& fillValues() const { return m_fill; }

    void collect(ItemValues& values) const override
    {
        Base::collect(values);
        values.fill = m_fill;
    }

    void restore(const ItemValues& values) override
    {
        Base::restore(values);
        m_fill = values.fill.value_or(FillValues());
        this->appearanceChanged();
    }

private:
    FillValues m_fill;
};

/// IFontItem.
template <class Base>
class FontLayer : public Base
{
public:
    using Base::Base;

    void setFontFamily(const QString& family) override
    {
        m_font.family = family;
        this->appearanceChanged();
    }

    void setFontPointSize(int size) override
    {
        m_font.sized = true;
        if (size > 0) {
            m_font.pointSize = std::min(size, MaximumFontSize);
        }
        this->appearanceChanged();
    }

    void setFontBold(bool bold) override
    {
        m_font.bold = bold;
        this->appearanceChanged();
    }

    void setFontItalic(bool italic) override
    {
        m_font.italic = italic;
        this->appearanceChanged();
    }

    void setFontUnderline(bool underline) override
    {
        m_font.underline = underline;
        this->appearanceChanged();
    }

protected:
    [[nodiscard]] const FontValues& fontValues() const { return m_font; }

    void collect(ItemValues& values) const override
    {
        Base::collect(values);
        values.font = m_font;
    }

    void restore(const ItemValues& values) override
    {
        Base::restore(values);
        m_font = values.font.value_or(FontValues());
        m_font.pointSize = std::clamp(m_font.pointSize, 1, MaximumFontSize);
        this->appearanceChanged();
    }

private:
    FontValues m_font;
};

/// TextColorItem and ITextAlignItem.
template <class Base>
class TextStyleLayer : public Base
{
public:
    using Base::Base;

    void setTextColor(const QColor& color) override
    {
        m_textStyle.color = color;
        this->appearanceChanged();
    }

    void setTextAlignment(Qt::Alignment alignment) override
    {
        m_textStyle.alignment = alignment;
        this->appearanceChanged();
    }

protected:
    [[nodiscard]] const TextStyleValues& textStyleValues() const { return m_textStyle; }

    void collect(ItemValues& values) const override
    {
        Base::collect(values);
        values.textStyle = m_textStyle;
    }

    void restore(const ItemValues& values) override
    {
        Base::restore(values);
        m_textStyle = values.textStyle.value_or(TextStyleValues());
        this->appearanceChanged();
    }

private:
    TextStyleValues m_textStyle;
};

/// IDatasourceItem.
template <class Base>
class DatasourceLayer : public Base
{
public:
    using Base::Base;

    void setDatasourceId(int id) override { m_datasource.id = id; }
    void setDatasourceFields(const QStringList& fields) override { m_datasource.fields = fields; }

    [[nodiscard]] DatasourceValues datasource() const override { return m_datasource; }

    void showContent(const std::optional<QString>& text) override
    {
        this->prepareGeometryChange();
        m_shownContent = text;
        this->appearanceChanged();
    }

protected:
    /// The data source's text if there is one, else the item's own.
    [[nodiscard]] QString shownContent(const QString& ownContent) const
    {
        return m_shownContent.value_or(ownContent);
    }
    [[nodiscard]] bool showsSourceContent() const { return m_shownContent.has_value(); }

    void collect(ItemValues& values) const override
    {
        Base::collect(values);
        values.datasource = m_datasource;
    }

    void restore(const ItemValues& values) override
    {
        Base::restore(values);
        m_datasource = values.datasource.value_or(DatasourceValues());
    }

private:
    DatasourceValues m_datasource;
    std::optional<QString> m_shownContent;
};

} // namespace workbench
