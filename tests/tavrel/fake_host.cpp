#include "tests/tavrel/fake_host.h"

#include "tests/tavrel/fake_items.h"

namespace tavrel_test {
namespace {

const QString Canvas = QStringLiteral("canvas");

class FakeDatasource : public TalDatasource
{
public:
    FakeDatasource(CallList& calls, int id)
        : m_calls(calls)
        , m_name(QStringLiteral("datasource%1").arg(id))
    {}

    void setDatasourceProperty(const QString& name, const QVariant& value) override
    {
        m_calls.add(m_name, "setDatasourceProperty", name, value);
    }
    [[nodiscard]] QList<QString> fields() const override { return {}; }
    void setSelectedFields(const QList<QString>& /*fields*/) override
    {
        m_calls.add(m_name, "setSelectedFields");
    }

private:
    CallList& m_calls;
    QString m_name;
};

Item* makeItem(CallList& calls, int number, int type)
{
    switch (type) {
    case 0x1000C:
        return new FakePicture(calls, number);
    case 0x1000D:
        return new FakeSymbol(calls, number);
    case 0x10015:
        return new FakeText(calls, number);
    case 0x1001D:
        return new FakeBarcode(calls, number);
    case 0x1001F:
        return new FakeLine(calls, number);
    case 0x1002A:
        return new FakeRectangle(calls, number);
    case 0x1002B:
        return new FakeRoundedRectangle(calls, number);
    case 0x1002C:
        return new FakeEllipse(calls, number);
    default:
        return new FakePolygon(calls, number);
    }
}

// Of a class that is wrong for every other code.
Item* makeWrongItem(CallList& calls, int number, int type)
{
    return type == KestTypes::Line ? makeItem(calls, number, KestTypes::Rectangle)
                                   : makeItem(calls, number, KestTypes::Line);
}

} // namespace

Item* FakeFactory::create(KestTypes::ShapeType type)
{
    m_calls.add(QStringLiteral("factory"), "create", QString::number(static_cast<int>(type), 16));
    if (refusedTypes.contains(type)) {
        return nullptr;
    }
    const int number = ++m_created;
    return mismatchedTypes.contains(type) ? makeWrongItem(m_calls, number, type)
                                          : makeItem(m_calls, number, type);
}

FakeCanvas::FakeCanvas(CallList& calls)
    : factory(calls)
    , m_calls(calls)
{}

void FakeCanvas::importItem(Item* item)
{
    m_calls.add(Canvas, "importItem");
    m_items.emplace_back(item);
}

void FakeCanvas::importCanvasParameters(double width, double height, bool canvasFlag,
                                        bool orientation)
{
    m_calls.add(Canvas, "importCanvasParameters", width, height, canvasFlag, orientation);
}

void FakeCanvas::setCanvasBackgroundColor(const QColor& color)
{
    m_background = color;
    m_calls.add(Canvas, "setCanvasBackgroundColor", color);
}

void FakeCanvas::setCanvasDefaultPenColor(const QColor& color)
{
    m_pen = color;
    m_calls.add(Canvas, "setCanvasDefaultPenColor", color);
}

void FakeCanvas::completeCanvasLoading()
{
    m_calls.add(Canvas, "completeCanvasLoading");
}

QGraphicsItem* FakeCanvas::item(std::size_t number) const
{
    return dynamic_cast<QGraphicsItem*>(m_items.at(number).get());
}

int FakeDatasources::createDatasource(const QString& kind)
{
    const int id = static_cast<int>(m_sources.size()) + 1;
    m_calls.add(QStringLiteral("datasources"), "createDatasource", kind);
    m_sources[id] = std::make_unique<FakeDatasource>(m_calls, id);
    return id;
}

TalDatasource* FakeDatasources::getDatasource(int id)
{
    m_calls.add(QStringLiteral("datasources"), "getDatasource", id);
    return forgetsSources ? nullptr : m_sources.at(id).get();
}

} // namespace tavrel_test
