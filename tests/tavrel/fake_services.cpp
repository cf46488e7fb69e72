#include "tests/tavrel/fake_services.h"

#include "host/services/common_lists.h"
#include "host/services/symbol_creator.h"
#include "host/services/symbol_database_model.h"
#include "host/services/tal_message_box.h"

#include <QFileInfo>

using tavrel_test::FakeServices;

namespace tavrel_test {

FakeServices& FakeServices::instance()
{
    static FakeServices services;
    return services;
}

FakeServices& FakeServices::reset()
{
    instance() = FakeServices();
    return instance();
}

} // namespace tavrel_test

class SymbolCreator::Private
{
public:
    QByteArray document;
    QByteArray symbol;
};

SymbolCreator::SymbolCreator(QWidget* /*parent*/)
    : d(std::make_unique<Private>())
{
    ++FakeServices::instance().creatorsMade;
    ++FakeServices::instance().creatorsAlive;
}

SymbolCreator::~SymbolCreator()
{
    --FakeServices::instance().creatorsAlive;
}

void SymbolCreator::loadImportedSvg(const QByteArray& svg)
{
    d->document = svg;
    FakeServices::instance().loadedDocuments.append(svg);
}

bool SymbolCreator::convertSvgToSymbol(const QRectF& target)
{
    d->symbol = target == QRectF(0.0, 0.0, 0.0, 0.0)
                    ? FakeServices::instance().conversions.value(d->document)
                    : QByteArray();
    return !d->symbol.isEmpty();
}

QByteArray SymbolCreator::getSymbolData()
{
    return d->symbol;
}

class SymbolDatabaseModel::Private
{
public:
    QString fileName;
};

SymbolDatabaseModel::SymbolDatabaseModel(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    ++FakeServices::instance().databasesAlive;
}

SymbolDatabaseModel::~SymbolDatabaseModel()
{
    --FakeServices::instance().databasesAlive;
}

void SymbolDatabaseModel::setDatabasePath(const QString& path)
{
    d->fileName = QFileInfo(path).fileName();
    FakeServices::instance().databasePaths.append(path);
}

QByteArray SymbolDatabaseModel::getDataFromSymbolName(QString name)
{
    FakeServices& services = FakeServices::instance();
    services.lookUps.append(d->fileName + QLatin1Char(':') + name);
    return services.databases.value(d->fileName).value(name);
}

class TalMessageBox::Private
{};

TalMessageBox::TalMessageBox(const QString& title, const QString& text,
                             QFlags<QMessageBox::StandardButton> buttons,
                             QMessageBox::StandardButton defaultButton, QString detail,
                             QMap<QMessageBox::StandardButton, QString> captions)
{
    FakeServices::instance().boxes.append(
        {title, text, int(buttons.toInt()), defaultButton, detail, captions.size(), this});
}

TalMessageBox::~TalMessageBox() = default;

bool CommonLists::isValidBarcode1D(unsigned short code)
{
    FakeServices::instance().askedCodes.append(code);
    return FakeServices::instance().linearCodes.contains(code);
}

bool CommonLists::isValidBarcode2D(unsigned short code)
{
    FakeServices::instance().askedCodes.append(code);
    return FakeServices::instance().matrixCodes.contains(code);
}
