#include "fake_host.h"

#include "host/items/ellipse_item.h"
#include "host/items/line_item.h"
#include "host/items/pie_item.h"
#include "host/items/pix_map_item.h"
#include "host/items/polygon_item.h"
#include "host/items/rectangle_item.h"
#include "host/items/rich_text_item.h"
#include "host/items/rounded_rectangle_item.h"
#include "host/items/symbol_item.h"

#include <QStringList>

namespace {

using namespace Qt::StringLiterals;
using ::shown;

QString shown(bool value)
{
    return value ? u"true"_s : u"false"_s;
}

QString shown(int value)
{
    return QString::number(value);
}

QString shown(const QString& text)
{
    return text;
}

QString shown(const QColor& color)
{
    return color.isValid() ? color.name(QColor::HexArgb) : u"invalid"_s;
}

QString shown(const QSizeF& size)
{
    return shown(size.width()) + u' ' + shown(size.height());
}

QString shown(const QPointF& point)
{
    return shown(point.x()) + u' ' + shown(point.y());
}

/// The common part of every item.
template <class Base>
class FakeItem : public Base
{
public:
    FakeItem(FakeHost& host, int number)
        : m_host(host)
        , m_number(number)
    {}
    ~FakeItem() override { m_host.forgetItem(m_number); }

    void setItemSize(const QSizeF& size) override
    {
        note("setItemSize", size);
        m_size = size;
    }
    [[nodiscard]] QSizeF getItemSize() const override { return m_size; }
    [[nodiscard]] double getItemWidth() const override
    {
        m_host.note(name() + u".getItemWidth"_s);
        return m_size.width();
    }
    [[nodiscard]] double getItemHeight() const override
    {
        m_host.note(name() + u".getItemHeight"_s);
        return m_size.height();
    }
    void setItemRotation(double degrees) override { note("setItemRotation", degrees); }
    void setFlipHorizontal(bool flip) override { note("setFlipHorizontal", flip); }
    void setFlipVertical(bool flip) override { note("setFlipVertical", flip); }

protected:
    [[nodiscard]] QString name() const { return u"item%1"_s.arg(m_number); }

    template <class Value>
    void note(const char* call, const Value& value)
    {
        m_host.note(name() + u'.' + QString::fromLatin1(call) + u' ' + shown(value));
    }

    void setSizeSilently(const QSizeF& size) { m_size = size; }

private:
    FakeHost& m_host;
    int m_number;
    QSizeF m_size{20, 10};
};

/// The common part of every item with an outline.
template <class Base>
class FakeContoured : public FakeItem<Base>
{
public:
    using FakeItem<Base>::FakeItem;

    void setPenColor(const QColor& color) override { this->note("setPenColor", color); }
    void setPenWidth(quint16 width) override { this->note("setPenWidth", int(width)); }
    void setPenStyle(int style) override { this->note("setPenStyle", style); }
    void setCapStyle(int style) override { this->note("setCapStyle", style); }
    void setJoinStyle(int style) override { this->note("setJoinStyle", style); }
};

/// The common part of every item with a fill.
template <class Base>
class FakeFillable : public FakeContoured<Base>
{
public:
    using FakeContoured<Base>::FakeContoured;

    void setFillColor(const QColor& color) override { this->note("setFillColor", color); }
    void setFilled(bool filled) override { this->note("setFilled", filled); }
    void setBrushStyle(int style) override { this->note("setBrushStyle", style); }
};

class FakeRounded : public FakeFillable<RoundedRectangleItem>
{
public:
    using FakeFillable::FakeFillable;

    void setCornerRadius(double radius) override { note("setCornerRadius", radius); }
};

class FakeLine : public FakeContoured<LineItem>
{
public:
    using FakeContoured::FakeContoured;

    void setLineLength(double length) override { note("setLineLength", length); }
    void setLineStartPoint(const QPointF& point) override { note("setLineStartPoint", point); }
    void setLineEndPoint(const QPointF& point) override { note("setLineEndPoint", point); }
    void setLineStartMarker(int marker) override { note("setLineStartMarker", marker); }
    void setLineEndMarker(int marker) override { note("setLineEndMarker", marker); }
};

/// A text 12 units high and ten units wide per character, up to its maximum width.
class FakeRichText : public FakeFillable<RichTextItem>
{
public:
    using FakeFillable::FakeFillable;

    void setText(const QString& text) override
    {
        note("setText", text);
        m_width = 10.0 * double(text.size());
    }
    void setTextColor(const QColor& color) override { note("setTextColor", color); }
    void setFontFamily(const QString& family) override { note("setFontFamily", family); }
    void setFontPointSize(int size) override { note("setFontPointSize", size); }
    void setFontBold(bool bold) override { note("setFontBold", bold); }
    void setFontItalic(bool italic) override { note("setFontItalic", italic); }
    void setFontUnderline(bool underline) override { note("setFontUnderline", underline); }
    void setTextAlignment(Qt::Alignment alignment) override
    {
        note("setTextAlignment", int(alignment));
    }
    void setDatasourceId(int id) override { note("setDatasourceId", id); }
    void setDatasourceFields(const QStringList& fields) override
    {
        note("setDatasourceFields", fields.join(u','));
    }
    void adjustBoxSizeToContent(double width) override
    {
        note("adjustBoxSizeToContent", width);
        setSizeSilently({m_width > 0 ? qMin(m_width, width) : width, 12});
    }

private:
    double m_width = 0;
};

class FakePicture : public FakeItem<PixMapItem>
{
public:
    using FakeItem::FakeItem;

    void pixmapImportActions(const QPixmap& pixmap) override
    {
        note("pixmapImportActions", QSizeF(pixmap.size()));
        setSizeSilently(pixmap.size());
    }
    void setDatasourceId(int id) override { note("setDatasourceId", id); }
    void setDatasourceFields(const QStringList& fields) override
    {
        note("setDatasourceFields", fields.join(u','));
    }
};

class FakeSymbol : public FakeItem<SymbolItem>
{
public:
    using FakeItem::FakeItem;

    void loadItemFromData(const QByteArray& data) override
    {
        note("loadItemFromData", QString::fromUtf8(data));
        setSizeSilently({7, 8});
    }
    void setForegroundColor(const QColor& color) override { note("setForegroundColor", color); }
    void setBackgroundColor(const QColor& color) override { note("setBackgroundColor", color); }
    void setFillColor(const QColor& color) override { note("setFillColor", color); }
    void setDatasourceId(int id) override { note("setDatasourceId", id); }
    void setDatasourceFields(const QStringList& fields) override
    {
        note("setDatasourceFields", fields.join(u','));
    }
};

struct Made
{
    Item* item;
    QGraphicsItem* graphics;
};

template <class Fake>
Made make(FakeHost& host, int number)
{
    auto* item = new Fake(host, number);
    return {item, item};
}

struct Row
{
    int type;
    const char* name;
    Made (*make)(FakeHost& host, int number);
};

constexpr Row Rows[] = {
    {KestTypes::Picture, "Picture", make<FakePicture>},
    {KestTypes::Symbol, "Symbol", make<FakeSymbol>},
    {KestTypes::RichText, "RichText", make<FakeRichText>},
    {KestTypes::Line, "Line", make<FakeLine>},
    {KestTypes::Rectangle, "Rectangle", make<FakeFillable<RectangleItem>>},
    {KestTypes::RoundedRectangle, "RoundedRectangle", make<FakeRounded>},
    {KestTypes::Ellipse, "Ellipse", make<FakeFillable<EllipseItem>>},
    {KestTypes::Pie, "Pie", make<FakeFillable<PieItem>>},
    {KestTypes::RightTriangle, "RightTriangle", make<FakeFillable<PolygonItem>>},
    {KestTypes::Triangle, "Triangle", make<FakeFillable<PolygonItem>>},
    {KestTypes::Diamond, "Diamond", make<FakeFillable<PolygonItem>>},
    {KestTypes::Pentagon, "Pentagon", make<FakeFillable<PolygonItem>>},
    {KestTypes::Hexagon, "Hexagon", make<FakeFillable<PolygonItem>>},
    {KestTypes::Octagon, "Octagon", make<FakeFillable<PolygonItem>>},
};

} // namespace

QString shown(double number)
{
    return QString::number(number, 'g', 6);
}

FakeHost::FakeHost()
{
    serviceCalls().clear();
}

FakeHost::~FakeHost()
{
    m_canvas.clear();
}

void FakeHost::importItem(Item* item)
{
    const auto* graphics = dynamic_cast<QGraphicsItem*>(item);
    note(u"canvas.importItem %1"_s.arg(m_numbers.value(graphics)));
    m_canvas.emplace_back(item);
}

void FakeHost::importCanvasParameters(double width, double height, bool canvasFlag,
                                      bool orientation)
{
    note(u"canvas.importCanvasParameters %1 %2 %3 %4"_s.arg(shown(width), shown(height),
                                                            shown(canvasFlag), shown(orientation)));
}

void FakeHost::completeCanvasLoading()
{
    note(u"canvas.completeCanvasLoading"_s);
}

Item* FakeHost::create(KestTypes::ShapeType type)
{
    for (const Row& row : Rows) {
        if (row.type != type) {
            continue;
        }
        m_types.append(QString::fromLatin1(row.name));
        if (refusedTypes.contains(type)) {
            return nullptr;
        }
        ++m_created;
        const Made made = confusedTypes.contains(type) ? make<FakePicture>(*this, m_created)
                                                       : row.make(*this, m_created);
        m_items.insert(m_created, made.graphics);
        m_numbers.insert(made.graphics, m_created);
        note(u"factory.create %1"_s.arg(QString::fromLatin1(row.name)));
        return made.item;
    }
    return nullptr;
}

QStringList FakeHost::callsOn(int item) const
{
    const QString prefix = u"item%1."_s.arg(item);
    QStringList calls;
    for (const QString& call : m_journal) {
        if (call.startsWith(prefix)) {
            calls.append(call.sliced(prefix.size()));
        }
    }
    return calls;
}

QString FakeHost::lastCall(int item, const QString& name) const
{
    const QStringList calls = callsOn(item).filter(name + u' ');
    return calls.isEmpty() ? QString() : calls.last().sliced(name.size() + 1);
}

QGraphicsItem* FakeHost::item(int number) const
{
    return m_items.value(number);
}

QString FakeHost::html(int number) const
{
    const auto* text = dynamic_cast<QGraphicsTextItem*>(item(number));
    return text != nullptr ? text->toHtml() : QString();
}
