#include "tests/orvanta/fake_host.h"

#include "host/services/common_lists.h"
#include "host/services/symbol_creator.h"

namespace journal {

QStringList& lines()
{
    static QStringList all;
    return all;
}

} // namespace journal

namespace fake {

namespace {

const QString CanvasName = QStringLiteral("canvas");

} // namespace

int& livingItems()
{
    static int count = 0;
    return count;
}

bool& svgConverts()
{
    static bool converts = true;
    return converts;
}

Item* Factory::create(KestTypes::ShapeType type)
{
    journal::lines().append(QStringLiteral("factory create %1").arg(int(type), 0, 16));
    if (refused.contains(type)) {
        return nullptr;
    }
    const QString name = QStringLiteral("item:%1").arg(++m_count);
    Item* item = nullptr;
    if (mistaken.contains(type)) {
        item = type == KestTypes::Picture ? static_cast<Item*>(new FakeRectangle(name))
                                          : static_cast<Item*>(new FakePixMap(name));
        return item;
    }
    switch (type) {
    case KestTypes::Picture:
        item = new FakePixMap(name);
        break;
    case KestTypes::Symbol:
        item = new FakeSymbol(name, symbolSize);
        break;
    case KestTypes::SimpleText:
        item = new FakeSimpleText(name);
        break;
    case KestTypes::RichText:
        item = new FakeRichText(name);
        break;
    case KestTypes::Barcode:
        item = new FakeBarcode(name);
        break;
    case KestTypes::Rectangle:
        item = new FakeRectangle(name);
        break;
    case KestTypes::Ellipse:
        item = new FakeEllipse(name);
        break;
    default:
        item = new FakePolygon(name);
        break;
    }
    m_names.insert(item, name);
    return item;
}

void Canvas::importItem(Item* item)
{
    journal::write(CanvasName, "importItem", factory.nameOf(item));
    items.emplace_back(item);
}

void Canvas::importCanvasParameters(double width, double height, bool canvasFlag, bool orientation)
{
    journal::write(CanvasName, "importCanvasParameters", width, height, canvasFlag, orientation);
}

void Canvas::setCanvasBackgroundColor(const QColor& color)
{
    journal::write(CanvasName, "setCanvasBackgroundColor", color);
}

void Canvas::setCanvasDefaultPenColor(const QColor& color)
{
    journal::write(CanvasName, "setCanvasDefaultPenColor", color);
}

QColor Canvas::canvasBackgroundColor() const
{
    journal::write(CanvasName, "canvasBackgroundColor");
    return background;
}

QColor Canvas::canvasDefaultPenColor() const
{
    journal::write(CanvasName, "canvasDefaultPenColor");
    return pen;
}

QString Canvas::namesOf(const QList<QGraphicsItem*>& listed) const
{
    QStringList names;
    for (QGraphicsItem* graphics : listed) {
        names.append(factory.nameOf(dynamic_cast<Item*>(graphics)));
    }
    return names.join(QLatin1Char(','));
}

void Canvas::setReadOnlyStateOnItemsInList(bool readOnly, QList<QGraphicsItem*> listed)
{
    journal::write(CanvasName, "setReadOnlyStateOnItemsInList", readOnly, namesOf(listed));
}

void Canvas::setUserBackgroundStateOnItemsInList(bool isBackground, QList<QGraphicsItem*> listed)
{
    journal::write(CanvasName, "setUserBackgroundStateOnItemsInList", isBackground,
                   namesOf(listed));
}

void Canvas::completeCanvasLoading()
{
    journal::write(CanvasName, "completeCanvasLoading");
}

QPointF Canvas::positionOf(std::size_t index) const
{
    return dynamic_cast<QGraphicsItem&>(*items.at(index)).pos();
}

Datasource::Datasource(int id)
    : m_name(QStringLiteral("datasource:%1").arg(id))
{}

void Datasource::setDatasourceProperty(const QString& name, const QVariant& value)
{
    journal::write(m_name, "setDatasourceProperty", name, value);
}

QList<QString> Datasource::fields() const
{
    journal::write(m_name, "fields");
    return {QStringLiteral("Value"), QStringLiteral("Other")};
}

void Datasource::setSelectedFields(const QList<QString>& fields)
{
    journal::write(m_name, "setSelectedFields", fields);
}

int Datasources::createDatasource(const QString& kind)
{
    journal::write(QStringLiteral("datasources"), "createDatasource", kind);
    const int id = static_cast<int>(m_sources.size()) + 1;
    m_sources.push_back(std::make_unique<Datasource>(id));
    return id;
}

TalDatasource* Datasources::getDatasource(int id)
{
    journal::write(QStringLiteral("datasources"), "getDatasource", id);
    return refusing ? nullptr : m_sources.at(static_cast<std::size_t>(id - 1)).get();
}

} // namespace fake

// The services that a host defines at link time.

bool CommonLists::isValidFamily(QString family)
{
    return family == QLatin1String("Arial") || family == QLatin1String("Courier New");
}

class SymbolCreator::Private
{
public:
    QByteArray svg;
};

SymbolCreator::SymbolCreator(QWidget* parent)
    : d(std::make_unique<Private>())
{
    journal::write(QStringLiteral("symbolcreator"), "create", parent == nullptr);
}

SymbolCreator::~SymbolCreator()
{
    journal::write(QStringLiteral("symbolcreator"), "delete");
}

void SymbolCreator::loadImportedSvg(const QByteArray& svg)
{
    journal::write(QStringLiteral("symbolcreator"), "loadImportedSvg", svg);
    d->svg = svg;
}

bool SymbolCreator::convertSvgToSymbol(const QRectF& target)
{
    journal::write(QStringLiteral("symbolcreator"), "convertSvgToSymbol", target.isNull());
    return fake::svgConverts();
}

QByteArray SymbolCreator::getSymbolData()
{
    return "symbol of " + d->svg;
}
