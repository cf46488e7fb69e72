// The link-time services of the silent host: the cheapest answers that let an import go
// its full way.

#include "host/services/basic_conversions.h"
#include "host/services/common_lists.h"
#include "host/services/file_controller_tools.h"
#include "host/services/symbol_creator.h"
#include "host/services/symbol_database_model.h"
#include "host/services/tal_message_box.h"
#include "host/services/white_space.h"
#include "tests/support/silent_host/silent_host.h"

#include <cmath>

bool BasicConversions::almostEqual(double a, double b, double tolerance)
{
    return std::abs(a - b) <= tolerance;
}

double BasicConversions::normalizeAngle(double degrees)
{
    if (!std::isfinite(degrees)) {
        return 0.0;
    }
    const double angle = std::fmod(degrees, 360.0);
    return angle < 0.0 ? angle + 360.0 : angle;
}

bool CommonLists::isValidFamily(QString /*family*/)
{
    return true;
}

bool CommonLists::isValidBarcode1D(unsigned short /*code*/)
{
    return true;
}

bool CommonLists::isValidBarcode2D(unsigned short /*code*/)
{
    return true;
}

QString FileControllerTools::getDefaultImportFolder()
{
    return {};
}

QRegularExpression WhiteSpace::getWhiteSpacesSplitRegex()
{
    return QRegularExpression(QStringLiteral("\\s+"));
}

class SymbolCreator::Private
{
public:
    QByteArray symbol;
};

SymbolCreator::SymbolCreator(QWidget* /*parent*/)
    : d(std::make_unique<Private>())
{}

SymbolCreator::~SymbolCreator() = default;

void SymbolCreator::loadImportedSvg(const QByteArray& svg)
{
    d->symbol = svg;
}

bool SymbolCreator::convertSvgToSymbol(const QRectF& /*target*/)
{
    if (silent::symbolConversion != silent::SymbolConversion::Works) {
        d->symbol.clear();
    }
    return silent::symbolConversion == silent::SymbolConversion::Forgets || !d->symbol.isEmpty();
}

QByteArray SymbolCreator::getSymbolData()
{
    return d->symbol;
}

class SymbolDatabaseModel::Private
{};

SymbolDatabaseModel::SymbolDatabaseModel(QObject* parent)
    : QObject(parent)
{}

SymbolDatabaseModel::~SymbolDatabaseModel() = default;

void SymbolDatabaseModel::setDatabasePath(const QString& /*path*/) {}

QByteArray SymbolDatabaseModel::getDataFromSymbolName(QString name)
{
    return name.toUtf8();
}

class TalMessageBox::Private
{};

TalMessageBox::TalMessageBox(const QString& title, const QString& /*text*/,
                             QFlags<QMessageBox::StandardButton> /*buttons*/,
                             QMessageBox::StandardButton /*defaultButton*/, QString /*detail*/,
                             QMap<QMessageBox::StandardButton, QString> /*captions*/)
{
    setWindowTitle(title);
}

TalMessageBox::~TalMessageBox() = default;
