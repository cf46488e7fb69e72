// The services: classes that LabelPort declares and calls, and that the host defines. They need
// no registration. They are undefined symbols in LabelPort's library, which the program that
// loads it supplies.

#include "host/services/basic_conversions.h"
#include "host/services/common_lists.h"
#include "host/services/file_controller_tools.h"
#include "host/services/symbol_creator.h"
#include "host/services/symbol_database_model.h"
#include "host/services/tal_message_box.h"
#include "host/services/white_space.h"

#include <QDir>
#include <QFontDatabase>
#include <QTextStream>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

// ---- Capabilities of this host ----------------------------------------------------------

bool CommonLists::isValidFamily(QString family)
{
    return QFontDatabase::families().contains(family, Qt::CaseInsensitive);
}

// Ask your barcode library. A code that both functions reject becomes a barcode of a default
// kind or is omitted, depending on the format.
bool CommonLists::isValidBarcode1D(unsigned short /*code*/)
{
    return true;
}

bool CommonLists::isValidBarcode2D(unsigned short /*code*/)
{
    return false;
}

QString FileControllerTools::getDefaultImportFolder()
{
    return QDir::homePath();
}

// ---- Small helpers that host and importer must agree on ---------------------------------

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

QRegularExpression WhiteSpace::getWhiteSpacesSplitRegex()
{
    return QRegularExpression(u"\\s+"_s);
}

// ---- Symbols ----------------------------------------------------------------------------
// LabelPort defines the layout of the classes; the content of `Private` is up to you.

class SymbolCreator::Private
{
public:
    QByteArray loaded;
    QByteArray symbol;
};

SymbolCreator::SymbolCreator(QWidget* /*parent*/)
    : d(std::make_unique<Private>())
{}

SymbolCreator::~SymbolCreator() = default;

void SymbolCreator::loadImportedSvg(const QByteArray& svg)
{
    d->loaded = svg;
}

bool SymbolCreator::convertSvgToSymbol(const QRectF& /*target*/)
{
    // This host stores the unchanged document, which is safe only because it never renders it:
    // SVG documents can refer to local files, and rendering can take hours.
    if (!d->loaded.contains("<svg")) {
        return false;
    }
    d->symbol = d->loaded;
    return true;
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

QByteArray SymbolDatabaseModel::getDataFromSymbolName(QString /*name*/)
{
    return {}; // No databases: symbols that a label only names are omitted.
}

// ---- Messages ---------------------------------------------------------------------------

class TalMessageBox::Private
{};

// A program with windows creates a label and buttons here and connects QDialog::finished to
// popupHideSignal(). This command-line program prints the message at once.
TalMessageBox::TalMessageBox(const QString& title, const QString& text,
                             QFlags<QMessageBox::StandardButton> /*buttons*/,
                             QMessageBox::StandardButton /*defaultButton*/, QString /*detail*/,
                             QMap<QMessageBox::StandardButton, QString> /*captions*/)
    : d(std::make_unique<Private>())
{
    setWindowTitle(title);
    QTextStream(stderr) << title << '\n' << text << '\n';
}

TalMessageBox::~TalMessageBox() = default;
