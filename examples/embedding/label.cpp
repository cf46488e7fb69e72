#include "label.h"

#include "items.h"

#include <QTextStream>

namespace {

QString points(double length)
{
    return QString::number(length, 'f', 1);
}

QString points(const QSizeF& size)
{
    return QStringLiteral("%1 x %2 pt").arg(points(size.width()), points(size.height()));
}

/// One line of the list. The importer, too, gets only an Item* and finds the other bases with
/// dynamic_cast.
QString described(const Item& item)
{
    const auto& listed = dynamic_cast<const ListedItem&>(item);
    const QPointF position = dynamic_cast<const QGraphicsItem&>(item).pos();
    return QStringLiteral("  %1 %2 at %3, %4")
        .arg(listed.kind().leftJustified(18), points(item.getItemSize()), points(position.x()),
             points(position.y()));
}

} // namespace

Item* Factory::create(KestTypes::ShapeType type)
{
    switch (type) {
    case KestTypes::Picture:
        return new Picture(QStringLiteral("picture"));
    case KestTypes::Symbol:
        return new Symbol(QStringLiteral("symbol"));
    case KestTypes::SimpleText:
        return new SimpleText(QStringLiteral("text"));
    case KestTypes::RichText:
        return new RichText(QStringLiteral("rich text"));
    case KestTypes::Barcode:
        return new Barcode(QStringLiteral("barcode"));
    case KestTypes::Line:
        return new Line(QStringLiteral("line"));
    case KestTypes::Rectangle:
        return new Rectangle(QStringLiteral("rectangle"));
    case KestTypes::RoundedRectangle:
        return new RoundedRectangle(QStringLiteral("rounded rectangle"));
    case KestTypes::Ellipse:
        return new Ellipse(QStringLiteral("ellipse"));
    case KestTypes::Pie:
        return new Pie(QStringLiteral("pie"));
    case KestTypes::RightTriangle:
        return new Polygon(QStringLiteral("right triangle"));
    case KestTypes::Triangle:
        return new Polygon(QStringLiteral("triangle"));
    case KestTypes::Diamond:
        return new Polygon(QStringLiteral("diamond"));
    case KestTypes::Pentagon:
        return new Polygon(QStringLiteral("pentagon"));
    case KestTypes::Hexagon:
        return new Polygon(QStringLiteral("hexagon"));
    case KestTypes::Octagon:
        return new Polygon(QStringLiteral("octagon"));
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
