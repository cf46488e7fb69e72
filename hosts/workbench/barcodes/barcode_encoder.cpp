#include "workbench/barcodes/barcode_encoder.h"

#include "workbench/barcodes/symbologies.h"

#include <QByteArray>
#include <QCoreApplication>

#include <zint.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>
#include <memory>

using namespace Qt::StringLiterals;

namespace workbench::barcodes {

namespace {

struct BarcodeEncoderTr
{
    Q_DECLARE_TR_FUNCTIONS(workbench::BarcodeEncoder)
};

struct SymbolDeleter
{
    void operator()(zint_symbol* symbol) const { ZBarcode_Delete(symbol); }
};
using SymbolPointer = std::unique_ptr<zint_symbol, SymbolDeleter>;

[[nodiscard]] BarcodeSymbol failure(const QString& error)
{
    BarcodeSymbol symbol;
    symbol.error = error;
    return symbol;
}

// --- errors ----------------------------------------------------------------------------

struct Reason
{
    int code;
    const char* words; // %1 is the kind of barcode; %2 the library's reason, may be empty
};

constexpr std::array<Reason, 5> Reasons{{
    {ZINT_ERROR_TOO_LONG,
     QT_TRANSLATE_NOOP("workbench::BarcodeEncoder",
                       "%1: the content has a length that this kind of barcode does not take%2.")},
    {ZINT_ERROR_INVALID_DATA,
     QT_TRANSLATE_NOOP("workbench::BarcodeEncoder",
                       "%1: the content does not suit this kind of barcode%2.")},
    {ZINT_ERROR_INVALID_CHECK, QT_TRANSLATE_NOOP("workbench::BarcodeEncoder",
                                                 "%1: the content ends in a wrong check digit%2.")},
    {ZINT_ERROR_INVALID_OPTION,
     QT_TRANSLATE_NOOP("workbench::BarcodeEncoder",
                       "%1: the content does not fit the barcode's settings%2.")},
    {ZINT_ERROR_MEMORY, QT_TRANSLATE_NOOP("workbench::BarcodeEncoder",
                                          "%1: the content is too much for the memory%2.")},
}};

[[nodiscard]] QString reasonText(int code)
{
    const auto found = std::find_if(Reasons.begin(), Reasons.end(),
                                    [code](const Reason& each) { return each.code == code; });
    return found == Reasons.end() ? BarcodeEncoderTr::tr("%1: the content cannot be encoded%2.")
                                  : BarcodeEncoderTr::tr(found->words);
}

/// The library's own explanation without its "Error 123: ".
[[nodiscard]] QString detail(const zint_symbol& symbol)
{
    const auto end = std::find(std::begin(symbol.errtxt), std::end(symbol.errtxt), '\0');
    const QString text =
        QString::fromUtf8(symbol.errtxt, std::distance(std::begin(symbol.errtxt), end));
    const qsizetype colon = text.indexOf(u": "_s);
    return text.startsWith(u"Error ") && colon > 0 ? text.mid(colon + 2) : text;
}

[[nodiscard]] QString explanation(const zint_symbol& symbol, int code, const QString& name)
{
    const QString reason = detail(symbol);
    return reasonText(code).arg(name, reason.isEmpty() ? QString() : u" (%1)"_s.arg(reason));
}

// --- input ------------------------------------------------------------------------------

[[nodiscard]] bool hasCapability(int code, unsigned int capability)
{
    return (ZBarcode_Cap(code, capability) & capability) != 0;
}

[[nodiscard]] int inRange(int value, int minimum, int maximum)
{
    return maximum > 0 && value >= minimum && value <= maximum ? value : 0;
}

void applySettings(zint_symbol& symbol, const BarcodeRequest& request, const Symbology& symbology)
{
    const int size = inRange(request.number, symbology.sizeMinimum, symbology.sizeMaximum);
    const int level = inRange(request.value, 1, symbology.levelMaximum);
    if (size > 0) {
        symbol.option_2 = size;
    }
    if (symbology.checkDigit && request.option == 1) {
        symbol.option_2 = 1;
    }
    if (request.symbology == BARCODE_PDF417) {
        symbol.option_2 = inRange(request.option, 1, 30);
    }
    if (level > 0) {
        symbol.option_1 = level;
    }
}

[[nodiscard]] int outputOptions(const BarcodeRequest& request, const Symbology& symbology)
{
    int options = request.flag1 ? BARCODE_QUIET_ZONES : 0;
    if (request.flag2 && !symbology.matrix) {
        options |= BARCODE_BIND;
    }
    return options;
}

[[nodiscard]] SymbolPointer makeSymbol(const BarcodeRequest& request, const Symbology& symbology,
                                       bool withSettings)
{
    SymbolPointer symbol(ZBarcode_Create());
    if (!symbol) {
        return symbol;
    }
    symbol->symbology = request.symbology;
    symbol->input_mode = UNICODE_MODE;
    if (hasCapability(request.symbology, ZINT_CAP_GS1) && request.content.startsWith(u'('))
        symbol->input_mode = GS1_MODE | GS1PARENS_MODE;
    else if (hasCapability(request.symbology, ZINT_CAP_GS1) && request.content.startsWith(u'['))
        symbol->input_mode = GS1_MODE;
    // At a scale of 1 the library draws two units per module. It draws no text, because its
    // text could not follow the item's font; and bars of one height, because the text is
    // below them.
    symbol->scale = 0.5F;
    symbol->show_hrt = 0;
    symbol->guard_descent = 0.0F;
    symbol->output_options = outputOptions(request, symbology);
    symbol->border_width = symbol->output_options & BARCODE_BIND ? 2 : 0;
    if (withSettings) {
        applySettings(*symbol, request, symbology);
    }
    return symbol;
}

/// A composite's linear part has a field of its own. False if it does not fit.
[[nodiscard]] bool splitComposite(zint_symbol& symbol, QByteArray& bytes)
{
    if (!hasCapability(symbol.symbology, ZINT_CAP_COMPOSITE)) {
        return true;
    }
    const qsizetype bar = bytes.indexOf('|');
    if (bar <= 0 || bar >= static_cast<qsizetype>(sizeof symbol.primary)) {
        return false;
    }
    const QByteArray primary = bytes.left(bar);
    if (primary.contains('\0')) {
        return false;
    }
    std::memcpy(symbol.primary, primary.constData(), static_cast<std::size_t>(bar) + 1);
    bytes.remove(0, bar + 1);
    if (bytes.startsWith('('))
        symbol.input_mode = GS1_MODE | GS1PARENS_MODE;
    return !bytes.isEmpty();
}

// --- output -----------------------------------------------------------------------------

/// The library's colors 1 to 8.
constexpr std::array<Qt::GlobalColor, 8> BarColors{Qt::cyan,   Qt::blue,  Qt::magenta, Qt::red,
                                                   Qt::yellow, Qt::green, Qt::black,   Qt::white};

void takeBars(const zint_vector& vector, BarcodeSymbol& symbol)
{
    for (const zint_vector_rect* bar = vector.rectangles; bar; bar = bar->next) {
        const QRectF rect(bar->x, bar->y, bar->width, bar->height);
        if (bar->colour >= 1 && bar->colour <= static_cast<int>(BarColors.size())) {
            symbol.coloredBars << ColoredBar{rect,
                                             BarColors[static_cast<std::size_t>(bar->colour - 1)]};
        } else {
            symbol.bars << rect;
        }
    }
}

void takeRoundShapes(const zint_vector& vector, BarcodeSymbol& symbol)
{
    for (const zint_vector_hexagon* each = vector.hexagons; each; each = each->next) {
        symbol.hexagons << Hexagon{{each->x, each->y}, each->diameter};
    }
    for (const zint_vector_circle* each = vector.circles; each; each = each->next) {
        symbol.circles << Circle{
            {each->x, each->y}, each->diameter, each->width, each->colour != 0};
    }
}

[[nodiscard]] QString humanReadable(const zint_symbol& symbol)
{
    const auto* end = std::find(std::begin(symbol.text), std::end(symbol.text), '\0');
    return QString::fromUtf8(reinterpret_cast<const char*>(symbol.text),
                             std::distance(std::begin(symbol.text), end));
}

[[nodiscard]] BarcodeSymbol taken(const zint_symbol& encoded, const BarcodeRequest& request)
{
    BarcodeSymbol symbol;
    symbol.size = QSizeF(encoded.vector->width, encoded.vector->height);
    symbol.fixedRatio = hasCapability(request.symbology, ZINT_CAP_FIXED_RATIO);
    takeBars(*encoded.vector, symbol);
    takeRoundShapes(*encoded.vector, symbol);
    if (request.flag3 && hasCapability(request.symbology, ZINT_CAP_HRT)) {
        symbol.caption = humanReadable(encoded);
    }
    return symbol;
}

/// Flattermarken encodes a 0 as blank space.
[[nodiscard]] bool isBlank(const BarcodeSymbol& symbol)
{
    return symbol.bars.isEmpty() && symbol.coloredBars.isEmpty() && symbol.hexagons.isEmpty() &&
           symbol.circles.isEmpty();
}

[[nodiscard]] BarcodeSymbol encodeOnce(const BarcodeRequest& request, const Symbology& symbology,
                                       bool withSettings)
{
    const SymbolPointer symbol = makeSymbol(request, symbology, withSettings);
    if (!symbol) {
        return failure(BarcodeEncoderTr::tr("There is not enough memory for the barcode."));
    }
    QByteArray bytes = request.content.toUtf8();
    const QString name = symbologyName(request.symbology);
    if (!splitComposite(*symbol, bytes)) {
        return failure(
            BarcodeEncoderTr::tr("%1: the content needs a linear part, a \"|\" and a second"
                                 " part.")
                .arg(name));
    }
    if (bytes.size() > ZINT_MAX_DATA_LEN) {
        return failure(
            BarcodeEncoderTr::tr("%1: the content is too long for any barcode.").arg(name));
    }
    const int encoded =
        ZBarcode_Encode(symbol.get(), reinterpret_cast<const unsigned char*>(bytes.constData()),
                        static_cast<int>(bytes.size()));
    if (encoded >= ZINT_ERROR) {
        return failure(explanation(*symbol, encoded, name));
    }
    const int drawn = ZBarcode_Buffer_Vector(symbol.get(), 0);
    if (drawn >= ZINT_ERROR || !symbol->vector) {
        return failure(explanation(*symbol, drawn, name));
    }
    const BarcodeSymbol result = taken(*symbol, request);
    if (isBlank(result)) {
        return failure(BarcodeEncoderTr::tr("%1: the content gives no bars at all.").arg(name));
    }
    return result;
}

[[nodiscard]] bool hasSettings(const BarcodeRequest& request)
{
    return request.option != 0 || request.number != 0 || request.value != 0;
}

} // namespace

BarcodeSymbol encode(const BarcodeRequest& request)
{
    const Symbology* symbology = findSymbology(request.symbology);
    if (!symbology || !ZBarcode_ValidID(request.symbology)) {
        return failure(BarcodeEncoderTr::tr("The label has an unknown kind of barcode"
                                            " (number %1).")
                           .arg(request.symbology));
    }
    if (request.content.isEmpty()) {
        return failure(BarcodeEncoderTr::tr("%1: there is no content to encode.")
                           .arg(symbologyName(request.symbology)));
    }
    if (request.content.size() > MaximumContent) {
        return failure(BarcodeEncoderTr::tr("%1: the content is too long for any barcode.")
                           .arg(symbologyName(request.symbology)));
    }
    BarcodeSymbol symbol = encodeOnce(request, *symbology, true);
    if (symbol.isValid() || !hasSettings(request)) {
        return symbol;
    }
    return encodeOnce(request, *symbology, false);
}

} // namespace workbench::barcodes
