#pragma once

#include "listed_item.h"

#include <QColor>
#include <QFont>
#include <QGraphicsTextItem>
#include <QSizeF>
#include <QStringList>

#include <algorithm>
#include <type_traits>
#include <utility>

// One layer for each facet of the contract. The item classes share a few facets; each layer is a
// template that adds one of them to a class:
//
//     WithPen<WithBox<LineItem>>      a LineItem with a box and a pen
//
// A host that draws stores all values. This one stores only sizes and fonts, because it lists
// sizes, and the size of a text depends on its font.
//
// Setters are called in any order, before and after importItem().

/// Size, rotation and flips of every item. The innermost layer.
template <typename Base>
class WithBox : public Base, public ListedItem
{
public:
    explicit WithBox(QString kind)
        : ListedItem(std::move(kind))
    {}

    // Importers read sizes back, so sizes must be stored.
    void setItemSize(const QSizeF& size) override { m_size = size; }
    [[nodiscard]] QSizeF getItemSize() const override { return m_size; }
    [[nodiscard]] double getItemWidth() const override { return this->getItemSize().width(); }
    [[nodiscard]] double getItemHeight() const override { return this->getItemSize().height(); }

    void setItemRotation(double /*degrees*/) override {}
    void setFlipHorizontal(bool /*flip*/) override {}
    void setFlipVertical(bool /*flip*/) override {}

private:
    QSizeF m_size{0.0, 0.0};
};

template <typename Base>
class WithPen : public Base
{
public:
    using Base::Base;
    void setPenColor(const QColor& /*color*/) override {}
    void setPenWidth(quint16 /*width*/) override {}
    void setPenStyle(int /*style*/) override {}
    void setCapStyle(int /*style*/) override {}
    void setJoinStyle(int /*style*/) override {}
};

template <typename Base>
class WithFillColor : public Base
{
public:
    using Base::Base;
    void setFillColor(const QColor& /*color*/) override {}
};

template <typename Base>
class WithBrush : public Base
{
public:
    using Base::Base;
    void setFilled(bool /*filled*/) override {}
    void setBrushStyle(int /*style*/) override {}
};

/// Font, color and alignment of texts, and of the text line below a barcode.
template <typename Base>
class WithFont : public Base
{
public:
    using Base::Base;
    void setTextColor(const QColor& /*color*/) override {}
    void setTextAlignment(Qt::Alignment /*alignment*/) override {}

    void setFontFamily(const QString& family) override
    {
        m_font.setFamily(family);
        useFont();
    }
    void setFontPointSize(int size) override
    {
        // The scene's unit is the point, so a pixel is a point. Limited, because the number
        // comes from a file.
        m_font.setPixelSize(std::clamp(size, 1, 1000));
        useFont();
    }
    void setFontBold(bool bold) override
    {
        m_font.setBold(bold);
        useFont();
    }
    void setFontItalic(bool italic) override
    {
        m_font.setItalic(italic);
        useFont();
    }
    void setFontUnderline(bool underline) override
    {
        m_font.setUnderline(underline);
        useFont();
    }

private:
    void useFont()
    {
        if constexpr (std::is_base_of_v<QGraphicsTextItem, Base>) {
            this->setFont(m_font);
        }
    }

    QFont m_font;
};

/// The content of a text, which determines the size until the importer sets one.
template <typename Base>
class WithText : public Base
{
public:
    using Base::Base;
    void setText(const QString& text) override { this->setPlainText(text); }

    void setItemSize(const QSizeF& size) override
    {
        m_followsText = false;
        Base::setItemSize(size);
    }
    [[nodiscard]] QSizeF getItemSize() const override
    {
        return m_followsText ? this->boundingRect().size() : Base::getItemSize();
    }

protected:
    void followText() { m_followsText = true; }

private:
    bool m_followsText = true;
};

/// The binding to a data source, for items with variable content.
template <typename Base>
class WithDatasource : public Base
{
public:
    using Base::Base;
    void setDatasourceId(int /*id*/) override {}
    void setDatasourceFields(const QStringList& /*fields*/) override {}
};

/// The two colors of barcodes and symbols.
template <typename Base>
class WithTwoColors : public Base
{
public:
    using Base::Base;
    void setForegroundColor(const QColor& /*color*/) override {}
    void setBackgroundColor(const QColor& /*color*/) override {}
};
