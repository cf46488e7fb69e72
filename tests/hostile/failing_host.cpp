#include "tests/hostile/failing_host.h"

#include "tests/support/silent_host/silent_items.h"

namespace failing {

namespace {

// A class that no reader can take for the one that belongs to the code.
Item* wrongItem(KestTypes::ShapeType type)
{
    if (type == KestTypes::Picture) {
        return new silent::Line;
    }
    return new silent::Picture;
}

} // namespace

Item* Factory::create(KestTypes::ShapeType type)
{
    ++asked[type];
    const Making how = of && *of == type ? making : Making::Right;
    if (how == Making::Nothing) {
        return nullptr;
    }
    Item* const item = how == Making::WrongClass ? wrongItem(type) : m_rest.create(type);
    madeFor[item] = type;
    return item;
}

void Canvas::importItem(Item* item)
{
    if (duringImport) {
        duringImport();
    }
    if (deletesItems) {
        ++deleted;
        delete item;
        return;
    }
    silent::Canvas::importItem(item);
}

int Canvas::count(KestTypes::ShapeType type) const
{
    int count = 0;
    for (const auto& item : items()) {
        count += factory.madeFor.at(item.get()) == type ? 1 : 0;
    }
    return count;
}

bool import(LegacyTemplateImporter& importer, ReaderKind reader, const QString& path)
{
    switch (reader) {
    case ReaderKind::Orvanta:
        return importer.importLabelFromOrvantaFile(path);
    case ReaderKind::OpenDocument:
        return importer.importLabelFromOpenOfficeFile(path);
    case ReaderKind::Tavrel:
        break;
    }
    return importer.importLabelFromTavrelFile(path);
}

} // namespace failing
