#include "tavrel/symbols.h"

#include "host/items/symbol_item.h"
#include "host/services/symbol_creator.h"
#include "host/services/symbol_database_model.h"
#include "tavrel/file_versions.h"
#include "tavrel/label_stream.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRectF>

using namespace Qt::Literals::StringLiterals;

namespace tavrel {
namespace {

SymbolRecord readNameOnly(QDataStream& stream, const FileContext& file, qint64 itemNumber)
{
    SymbolRecord record;
    record.header = readItemHeader(stream, file, itemNumber);
    record.name = readText(stream);
    return record;
}

SymbolRecord readNameAndData(QDataStream& stream, const FileContext& file, qint64 itemNumber)
{
    SymbolRecord record = readNameOnly(stream, file, itemNumber);
    record.data = readBytes(stream);
    return record;
}

constexpr std::array SymbolLayouts{
    Layout{OldestVersion, &readNameOnly},
    Layout{FirstWithSymbolData, &readNameAndData},
};

SymbolDatabaseModel& openedOnce(std::unique_ptr<SymbolDatabaseModel>& database,
                                const QString& fileName)
{
    if (!database) {
        database = std::make_unique<SymbolDatabaseModel>(nullptr);
        database->setDatabasePath(QCoreApplication::applicationDirPath() + u'/' + fileName);
    }
    return *database;
}

} // namespace

SymbolRecord readSymbolRecord(QDataStream& stream, const FileContext& file, qint64 itemNumber)
{
    return layoutFor(SymbolLayouts, file.version)(stream, file, itemNumber);
}

SymbolSource::SymbolSource() = default;
SymbolSource::~SymbolSource() = default;

QByteArray SymbolSource::getSymbolData(const QString& name)
{
    const QString fileName = QFileInfo(name).fileName();
    const QByteArray data = openedOnce(m_symbols, u"symbols.db"_s).getDataFromSymbolName(fileName);
    if (!data.isEmpty()) {
        return data;
    }
    return openedOnce(m_legacySymbols, u"legacy_symbols.db"_s).getDataFromSymbolName(fileName);
}

void SymbolSource::convertSvgSymbol(QByteArray& data)
{
    if (!m_symbolCreator) {
        m_symbolCreator = std::make_unique<SymbolCreator>(nullptr);
    }
    m_symbolCreator->loadImportedSvg(data);
    // The result is ignored: after a failed conversion, data that draws nothing is refused by its
    // size.
    (void)m_symbolCreator->convertSvgToSymbol(QRectF(0.0, 0.0, 0.0, 0.0));
    data = m_symbolCreator->getSymbolData();
}

BuildResult buildSymbol(const HostCanvas& host, const ItemHeader& header,
                        const Resolution& resolution, const QByteArray& data)
{
    auto item = building::createItem<SymbolItem>(host.factory, KestTypes::Symbol);
    if (!item) {
        return BuildResult::NoItem;
    }
    item->loadItemFromData(data);
    const QSizeF ownSize = item->getItemSize();
    if (ownSize.width() <= 0.0 || ownSize.height() <= 0.0) {
        return BuildResult::NoSize;
    }
    item->setItemSize(contentSize(header, resolution, ownSize));
    item->setItemRotation(header.rotation);
    placeItem(*item, header);
    item->setForegroundColor(host.model->canvasDefaultPenColor());
    item->setBackgroundColor(host.model->canvasBackgroundColor());
    host.model->importItem(item.release());
    return BuildResult::Built;
}

} // namespace tavrel
