#include "label.h"

#include "items.h"

#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

namespace {

QString points(double length)
{
    return QString::number(length, 'f', 1);
}

QString points(const QSizeF& size)
{
    return u"%1 x %2 pt"_s.arg(points(size.width()), points(size.height()));
}

/// One line of the list. The importer, too, gets only an Item* and finds the other bases with
/// dynamic_cast.
QString described(const Item& item)
{
    const auto& listed = dynamic_cast<const ListedItem&>(item);
    const QPointF position = dynamic_cast<const QGraphicsItem&>(item).pos();
    return u"  %1 %2 at %3, %4"_s.arg(listed.kind().leftJustified(18), points(item.getItemSize()),
                                      points(position.x()), points(position.y()));
}

} // namespace

Item* Factory::create(KestTypes::ShapeType type)
{
    switch (type) {
    case KestTypes::Picture:
        return new Picture(u"picture"_s);
    case KestTypes::Symbol:
        return new Symbol(u"symbol"_s);
    case KestTypes::SimpleText:
        return new SimpleText(u"text"_s);
    case KestTypes::RichText:
        return new RichText(u"rich text"_s);
    case KestTypes::Barcode:
        return new Barcode(u"barcode"_s);
    case KestTypes::Line:
        return new Line(u"line"_s);
    case KestTypes::Rectangle:
        return new Rectangle(u"rectangle"_s);
    case KestTypes::RoundedRectangle:
        return new RoundedRectangle(u"rounded rectangle"_s);
    case KestTypes::Ellipse:
        return new Ellipse(u"ellipse"_s);
    case KestTypes::Pie:
        return new Pie(u"pie"_s);
    case KestTypes::RightTriangle:
        return new Polygon(u"right triangle"_s);
    case KestTypes::Triangle:
        return new Polygon(u"triangle"_s);
    case KestTypes::Diamond:
        return new Polygon(u"diamond"_s);
    case KestTypes::Pentagon:
        return new Polygon(u"pentagon"_s);
    case KestTypes::Hexagon:
        return new Polygon(u"hexagon"_s);
    case KestTypes::Octagon:
        return new Polygon(u"octagon"_s);
    }
    return nullptr; // A code of a later version: the importer omits the item.
}

void Label::importCanvasParameters(double width, double height, bool /*canvasFlag*/,
                                   bool /*orientation*/)
{
    m_page = {width, height};
}

void Label::importItem(Item* item)
{
    m_items.emplace_back(item);
}

void Label::setReadOnlyStateOnItemsInList(bool /*readOnly*/, QList<QGraphicsItem*> /*items*/) {}

void Label::setUserBackgroundStateOnItemsInList(bool /*background*/,
                                                QList<QGraphicsItem*> /*items*/)
{}

void Label::list(QTextStream& out) const
{
    out << "page " << points(m_page) << '\n';
    for (const std::unique_ptr<Item>& item : m_items) {
        out << described(*item) << '\n';
    }
    out << m_items.size() << (m_items.size() == 1 ? " item\n" : " items\n");
}
