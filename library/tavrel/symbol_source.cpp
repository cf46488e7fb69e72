#include "tavrel/symbol_source.h"

#include "host/services/symbol_creator.h"
#include "host/services/symbol_database_model.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRectF>

namespace tavrel {
namespace {

SymbolDatabaseModel& openedOnce(std::unique_ptr<SymbolDatabaseModel>& database,
                                const QString& fileName)
{
    if (!database) {
        database = std::make_unique<SymbolDatabaseModel>(nullptr);
        database->setDatabasePath(QCoreApplication::applicationDirPath() + QLatin1Char('/') +
                                  fileName);
    }
    return *database;
}

} // namespace

SymbolSource::SymbolSource() = default;
SymbolSource::~SymbolSource() = default;

QByteArray SymbolSource::getSymbolData(const QString& name)
{
    const QString fileName = QFileInfo(name).fileName();
    const QByteArray data =
        openedOnce(m_symbols, QStringLiteral("symbols.db")).getDataFromSymbolName(fileName);
    if (!data.isEmpty()) {
        return data;
    }
    return openedOnce(m_legacySymbols, QStringLiteral("legacy_symbols.db"))
        .getDataFromSymbolName(fileName);
}

void SymbolSource::convertSvgSymbol(QByteArray& data)
{
    if (!m_symbolCreator) {
        m_symbolCreator = std::make_unique<SymbolCreator>(nullptr);
    }
    m_symbolCreator->loadImportedSvg(data);
    // What a document that cannot be converted leaves is the creator's to say: data that
    // draws nothing is refused by its size.
    (void)m_symbolCreator->convertSvgToSymbol(QRectF(0.0, 0.0, 0.0, 0.0));
    data = m_symbolCreator->getSymbolData();
}

} // namespace tavrel
