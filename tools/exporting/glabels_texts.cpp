#include "exporting/glabels_texts.h"

#include "exporting/glabels_text_boxes.h"
#include "workbench/items/shape_kinds.h"
#include "workbench/items/text_layout.h"

#include <QCoreApplication>
#include <QFontInfo>
#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace exporting {

using namespace Qt::StringLiterals;
using namespace workbench;

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("exporting::Glabels", text);
}

/// Pixels, in which widths are not rounded.
constexpr int MeasuringSize = 100;
/// Keeps a text from moving by a point if its place is whole points, except for a rounding error.
constexpr double HeightTolerance = 0.01;

PlainText plainTextOf(const ItemValues& values)
{
    const FontValues font = values.font.value_or(FontValues());
    const TextStyleValues style = values.textStyle.value_or(TextStyleValues());
    const bool fixesWidth = !values.textLabel || (values.textLabel->limiting & 1) != 0;
    const bool wraps = values.type == KestTypes::RichText || (font.sized && fixesWidth);
    return {values.text.value_or(TextValues()).text, toFont(font), style.alignment, style.color,
            wraps};
}

TextLines linesOf(const ItemValues& values, const PlainText& text, const QRectF& box)
{
    const bool isFilling =
        values.type == KestTypes::SimpleText && !values.font.value_or(FontValues()).sized;
    return isFilling ? textLinesFilling(text, box) : textLines(text, box);
}

void underlineLines(GlabelsDocument& document, const QTransform& toPage, const TextLines& laid,
                    const PlainText& text)
{
    const QFontMetricsF metrics(text.font);
    const double scale = laid.fontSize / text.font.pixelSize();
    for (const TextLine& line : laid.lines) {
        const double y = line.baseline + metrics.underlinePos() * scale;
        if (line.box.width() > 0.0) {
            addUnderline(document, toPage, {line.box.left(), y, line.box.right(), y},
                         {text.color, metrics.lineWidth() * scale});
        }
    }
}

/// How far gLabels would place the first line above its place. It measures the height of the text
/// in whole points, and places it at whole points from the upper edge of the box.
double riseOf(const TextLines& laid, const GlabelsText& text, const QRectF& box)
{
    const GlabelsMetrics metrics = metricsOf(text);
    const double pitch = metrics.height() + text.lineGap;
    const double height = metrics.height() + pitch * static_cast<double>(laid.lines.size() - 1);
    const double room = box.height() - std::ceil(height);
    const double top = box.top() + std::trunc(verticalOffset(text.alignment, room));
    return laid.lines.first().baseline - top - metrics.ascent();
}

/// Whether a record is on one line in our own layout, and must be in gLabels.
bool isOnOneLine(const QString& record, const PlainText& text, double fontSize, double boxWidth)
{
    PlainText line = text;
    line.text = record;
    line.wraps = false;
    const double width = measureText(line, 0.0).width() * fontSize / text.font.pixelSize();
    return !text.wraps || width <= boxWidth;
}

void noteChanges(ExportFindings& findings, const ItemValues& values, const QString& family,
                 bool losesUnderline)
{
    const QString kind = shapeCode(values.type);
    const QString wanted = values.font.value_or(FontValues()).family;
    const Qt::Alignment alignment = values.textStyle.value_or(TextStyleValues()).alignment;
    if (losesUnderline) {
        findings.add(Fidelity::Simplified, kind,
                     tr("A text from a data source is not underlined."));
    } else if (alignment.testFlag(Qt::AlignJustify)) {
        findings.add(Fidelity::Simplified, kind, tr("Justified text is aligned left."));
    } else if (!wanted.isEmpty() && wanted != family) {
        findings.add(
            Fidelity::Simplified, kind,
            tr("gLabels knows only installed fonts: \"%1\" became \"%2\".").arg(wanted, family));
    } else {
        findings.add(Fidelity::Exact, kind);
    }
}

void addPlainText(GlabelsDocument& document, ExportFindings& findings, const WalkedItem& item,
                  const QString& field, const QString& longest)
{
    const QRectF box({0.0, 0.0}, item.values.box.size);
    const PlainText text = plainTextOf(item.values);
    const TextLines laid = linesOf(item.values, text, box);
    if (laid.lines.isEmpty() || laid.fontSize <= 0.0) {
        return;
    }
    GlabelsText written;
    for (const TextLine& line : laid.lines) {
        written.lines.append(QString(line.text).remove(QChar::LineSeparator));
    }
    written.field = field;
    written.family = installedFamily(QFontInfo(text.font).family());
    written.size = laid.fontSize;
    written.bold = text.font.bold();
    written.italic = text.font.italic();
    written.color = text.color;
    written.alignment = text.alignment;
    double width = 0.0;
    for (const TextLine& line : laid.lines) {
        width += line.box.width();
    }
    fitSize(written, width);
    if (laid.lines.size() > 1) {
        const double pitch = laid.lines.at(1).baseline - laid.lines.first().baseline;
        written.lineGap = pitch - metricsOf(written).height();
    }
    const GlabelsMetrics metrics = metricsOf(written);
    const bool isOneLine =
        !field.isEmpty() && isOnOneLine(longest, text, laid.fontSize, box.width());
    double widest = isOneLine ? metrics.width(longest) : 0.0;
    for (const QString& line : written.lines) {
        widest = std::max(widest, metrics.width(line));
    }
    QRectF room = widened(box, widest, text.alignment);
    room.setHeight(box.height() + HeightTolerance);
    document.addText(room.translated(0.0, riseOf(laid, written, room)), item.toPage, written);
    const bool isUnderlined = text.font.underline();
    if (isUnderlined && field.isEmpty()) {
        underlineLines(document, item.toPage, laid, text);
    }
    noteChanges(findings, item.values, written.family, isUnderlined && !field.isEmpty());
}

} // namespace

bool addTextItem(GlabelsDocument& document, ExportFindings& findings, const WalkedItem& item,
                 const QString& field, const QString& longest)
{
    if (item.values.text && !item.values.text->html.isEmpty()) {
        return addRichText(document, findings, item);
    }
    addPlainText(document, findings, item, field, longest);
    return true;
}

void addCaption(GlabelsDocument& document, const QRectF& box, const QTransform& toPage,
                const QString& text, const QString& field, const QFont& font, double size,
                const QColor& color, Qt::Alignment alignment)
{
    GlabelsText written;
    written.lines = {text};
    written.field = field;
    written.family = installedFamily(QFontInfo(font).family());
    written.size = size;
    written.bold = font.bold();
    written.italic = font.italic();
    written.color = color;
    written.alignment = alignment & Qt::AlignHorizontal_Mask;
    QFont measured = font;
    measured.setPixelSize(MeasuringSize);
    const double width = QFontMetricsF(measured).horizontalAdvance(text) * size / MeasuringSize;
    fitSize(written, width);
    document.addText(widened(box, metricsOf(written).width(text), written.alignment), toPage,
                     written);
}

} // namespace exporting
