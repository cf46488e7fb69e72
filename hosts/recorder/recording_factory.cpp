#include "recorder/recording_factory.h"

#include "recorder/items/recorded_items.h"

using namespace Qt::StringLiterals;

namespace recorder {

namespace {

/// An item by its two base classes, and its owner.
struct MadeItem
{
    std::unique_ptr<Item> item;
    QGraphicsItem* graphics = nullptr;
};

using Maker = MadeItem (*)(const std::shared_ptr<Recording>&);

template <typename T>
MadeItem make(const std::shared_ptr<Recording>& recording)
{
    auto item = std::make_unique<T>(recording, recording->nextItemNumber());
    QGraphicsItem* graphics = item.get();
    return {std::move(item), graphics};
}

struct MakerRow
{
    KestTypes::ShapeType type;
    Maker maker;
};

constexpr MakerRow Makers[] = {
    {KestTypes::Picture, make<RecordedPixMap>},
    {KestTypes::Symbol, make<RecordedSymbol>},
    {KestTypes::SimpleText, make<RecordedSimpleText>},
    {KestTypes::RichText, make<RecordedRichText>},
    {KestTypes::Barcode, make<RecordedBarcode>},
    {KestTypes::Line, make<RecordedLine>},
    {KestTypes::Rectangle, make<RecordedRectangle>},
    {KestTypes::RoundedRectangle, make<RecordedRoundedRectangle>},
    {KestTypes::Ellipse, make<RecordedEllipse>},
    {KestTypes::Pie, make<RecordedPie>},
    {KestTypes::RightTriangle, make<RecordedPolygon>},
    {KestTypes::Triangle, make<RecordedPolygon>},
    {KestTypes::Diamond, make<RecordedPolygon>},
    {KestTypes::Pentagon, make<RecordedPolygon>},
    {KestTypes::Hexagon, make<RecordedPolygon>},
    {KestTypes::Octagon, make<RecordedPolygon>},
};

MadeItem makeItem(KestTypes::ShapeType type, const std::shared_ptr<Recording>& recording)
{
    for (const MakerRow& row : Makers) {
        if (row.type == type) {
            return row.maker(recording);
        }
    }
    return {};
}

} // namespace

RecordingFactory::RecordingFactory(std::shared_ptr<Recording> recording)
    : m_recording(std::move(recording))
{}

Item* RecordingFactory::create(KestTypes::ShapeType type)
{
    const Behavior& behavior = m_recording->behavior();
    // A class that is wrong for every other type.
    const auto other = type == KestTypes::Picture ? KestTypes::Line : KestTypes::Picture;
    MadeItem made;
    if (!behavior.refusedTypes.contains(type)) {
        made = makeItem(behavior.mismatchedTypes.contains(type) ? other : type, m_recording);
    }
    if (made.item) {
        m_recording->addItem(type, made.graphics);
    }
    if (m_recording->trace() != nullptr) {
        m_recording->answer(itemValue(made.item.get()), u"factory"_s, "create", type);
    }
    return made.item.release();
}

} // namespace recorder
