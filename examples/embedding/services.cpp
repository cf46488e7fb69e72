// The services: classes that LabelPort declares and calls, and that the host defines. They need
// no registration. LabelPort's library leaves them open, and finds them in the program that
// loads it.

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

// ---- What this host can do --------------------------------------------------------------

bool CommonLists::isValidFamily(QString family)
{
    return QFontDatabase::families().contains(family, Qt::CaseInsensitive);
}

// Ask your barcode library. A code that neither of the two knows becomes a barcode of a default
// kind or none at all, depending on the format.
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
    return QRegularExpression(QStringLiteral("\\s+"));
}

// ---- Symbols ----------------------------------------------------------------------------
// `Private` is yours to fill: the classes' layout is LabelPort's, what is behind `d` is not.

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
    // Our form of symbol data is the document as it came, which is safe only because nothing of
    // ours ever renders it: SVG documents can name files to open, and can be made to take hours.
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
    return {}; // No databases here: symbols that a label only names are left out.
}

// ---- Messages ---------------------------------------------------------------------------

class TalMessageBox::Private
{};

// A program with windows lays out a label and buttons here, and lets QDialog::finished emit
// popupHideSignal(). On the command line the message is written at once.
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
