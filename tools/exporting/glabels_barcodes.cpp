#include "exporting/glabels_barcodes.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>

namespace exporting {

using namespace Qt::StringLiterals;
using namespace workbench::barcodes;
using workbench::BarcodeValues;

namespace {

/// How a backend places the bars in the box of the object.
enum class Placing {
    Margins, ///< 10 points on each side
    Fill,    ///< no margin
};

/// A symbology that gLabels encodes from contents of a pattern.
struct Style
{
    int symbology;
    const char* content; ///< regular expression
    const char* backend;
    const char* style;
    Placing placing;
    /// Modules that the backend leaves blank before the bars, for a digit of the caption.
    double leadingModules;
};

// Postal codes are not in the table: gLabels draws them in one fixed size.
constexpr auto GnuBarcode = "gnu-barcode";
constexpr std::array Styles{
    Style{3, "[0-9]+", GnuBarcode, "I25", Placing::Margins, 0},
    Style{8, "[-A-Z0-9 .$/+%]+", GnuBarcode, "Code39", Placing::Margins, 0},
    Style{13, "[0-9]{12,13}", GnuBarcode, "EAN-13", Placing::Margins, 9},
    Style{13, "[0-9]{7,8}", GnuBarcode, "EAN-8", Placing::Margins, 0},
    Style{14, "[0-9]{13}", GnuBarcode, "EAN-13", Placing::Margins, 9},
    Style{14, "[0-9]{8}", GnuBarcode, "EAN-8", Placing::Margins, 0},
    Style{18, "[A-D][-0-9$:/.+]+[A-D]", GnuBarcode, "CBR", Placing::Margins, 1},
    Style{20, "[ -~]+", GnuBarcode, "Code128", Placing::Margins, 0},
    Style{25, "[-A-Z0-9 .$/+%]+", GnuBarcode, "Code93", Placing::Margins, 0},
    Style{34, "[0-9]{11}", GnuBarcode, "UPC-A", Placing::Margins, 9},
    Style{35, "[0-9]{12}", GnuBarcode, "UPC-A", Placing::Margins, 9},
    Style{37, "[0-9]{6,7}", GnuBarcode, "UPC-E", Placing::Margins, 9},
    Style{38, "[0-9]{8}", GnuBarcode, "UPC-E", Placing::Margins, 9},
    Style{47, "[0-9]+", GnuBarcode, "MSI", Placing::Margins, 0},
    Style{50, "[-A-Z0-9 .$/+%]+", GnuBarcode, "Code39", Placing::Margins, 0},
    Style{58, "[ -~]+", "libqrencode", "IEC18004", Placing::Fill, 0},
    Style{60, "[ -~]+", GnuBarcode, "Code128B", Placing::Margins, 0},
    Style{69, "97[89][0-9]{10}", GnuBarcode, "EAN-13", Placing::Margins, 9},
    Style{71, "[ -~]+", "libiec16022", "IEC16022", Placing::Fill, 0},
};

/// GNU barcode omits its check characters without the setting; scanners require them.
constexpr int Code93 = 25;

constexpr double Margin = 10.0;
/// GNU barcode draws no narrower module; points.
constexpr double LeastModule = 0.5;

const Style* styleOf(const BarcodeValues& values, const QString& content)
{
    const auto* const found = std::find_if(Styles.begin(), Styles.end(), [&](const Style& style) {
        return style.symbology == values.symbology &&
               QRegularExpression(QRegularExpression::anchoredPattern(QLatin1String(style.content)))
                   .match(content)
                   .hasMatch();
    });
    return found == Styles.end() ? nullptr : found;
}

/// The extent of the bars in modules, without quiet zones.
QRectF extentOf(const BarcodeSymbol& symbol)
{
    QRectF extent;
    for (const QRectF& bar : symbol.bars) {
        extent |= bar;
    }
    return extent;
}

/// Settings for which gLabels has no equivalent.
bool hasOwnSettings(const BarcodeValues& values)
{
    const bool isCheckDigit =
        values.option == 1 && (values.symbology == 3 || values.symbology == 47);
    return values.flag2 || values.number != 0 || values.value != 0 ||
           (values.option != 0 && !isCheckDigit);
}

} // namespace

bool isGlabelsContent(const BarcodeValues& values, const QString& content)
{
    return styleOf(values, content) != nullptr;
}

std::optional<GlabelsSymbol> glabelsSymbol(const BarcodeValues& values, const BarcodeSymbol& symbol,
                                           const BarcodeLayout& layout)
{
    const Style* style = styleOf(values, values.content);
    const QRectF extent = extentOf(symbol);
    if (style == nullptr || hasOwnSettings(values) || extent.isEmpty() ||
        layout.moduleWidth < LeastModule) {
        return std::nullopt;
    }
    const bool isSquare = std::abs(extent.width() - extent.height()) < 0.5;
    if (style->placing == Placing::Fill && !isSquare) {
        return std::nullopt;
    }
    QRectF box(layout.bars.left() + extent.left() * layout.moduleWidth,
               layout.bars.top() + extent.top() * layout.moduleHeight,
               extent.width() * layout.moduleWidth, extent.height() * layout.moduleHeight);
    if (style->placing == Placing::Margins) {
        box.adjust(-Margin - style->leadingModules * layout.moduleWidth, -Margin, Margin, Margin);
    }
    return GlabelsSymbol{{QLatin1String(style->backend),
                          QLatin1String(style->style),
                          values.option == 1 || values.symbology == Code93,
                          values.content,
                          {},
                          values.foreground},
                         box};
}

} // namespace exporting
