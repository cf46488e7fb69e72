#include "workbench/items/text_layout.h"

#include "workbench/items/font_families.h"
#include "workbench/items/item_limits.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <cmath>
#include <optional>

namespace workbench {

namespace {

// Longer text is unreadable on any label, but would take long to lay out.
constexpr qsizetype MaximumCharacters = 10'000;
constexpr int MaximumTextLines = 5'000;

// The font size for the layout of a text that is scaled to its box.
constexpr int ReferenceSize = 100;

// A font size in pixels whose metrics are exact to a thousandth.
constexpr int MetricsSize = 1000;

// Tolerance for rounding: a line measured to fit must not be broken.
constexpr double WidthTolerance = 0.01;

QTextOption optionFor(const PlainText& text)
{
    // Physical alignment, and a direction by the text: both independent of the program's language.
    QTextOption option((text.alignment & Qt::AlignHorizontal_Mask) | Qt::AlignAbsolute);
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setWrapMode(text.wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                  : QTextOption::ManualWrap);
    option.setUseDesignMetrics(true);
    return option;
}

void prepareLayout(QTextLayout& layout, const PlainText& text)
{
    QString lines = text.text.left(MaximumCharacters);
    lines.replace(QLatin1Char('\n'), QChar::LineSeparator);
    layout.setText(lines);
    layout.setFont(text.font);
    layout.setTextOption(optionFor(text));
    layout.setCacheEnabled(true);
}

/// Ascent and descent of a font in points.
struct LineMetrics
{
    double ascent = 0.0;
    double descent = 0.0;
};

// Font engines round the metrics of a small font up to whole pixels, which are points here: a line
// of 7 points would be 12 % too high. Those of a large font are exact.
LineMetrics exactMetrics(QFont font)
{
    const double share = static_cast<double>(font.pixelSize()) / MetricsSize;
    font.setPixelSize(MetricsSize);
    const QFontMetricsF metrics(font);
    return {metrics.ascent() * share, metrics.descent() * share};
}

// Lays the lines out from top to bottom; returns their total size.
QSizeF layOut(QTextLayout& layout, double width)
{
    const LineMetrics metrics = exactMetrics(layout.font());
    double height = 0.0;
    double used = 0.0;
    layout.beginLayout();
    for (int count = 0; count < MaximumTextLines; ++count) {
        QTextLine line = layout.createLine();
        if (!line.isValid()) {
            break;
        }
        line.setLineWidth(width);
        // Characters of a replaced font may need more room.
        const double higher = std::max(0.0, line.ascent() - std::ceil(metrics.ascent));
        const double deeper = std::max(0.0, line.descent() - std::ceil(metrics.descent));
        line.setPosition({0.0, height + metrics.ascent + higher - line.ascent()});
        height += metrics.ascent + metrics.descent + higher + deeper;
        used = std::max(used, line.naturalTextWidth());
    }
    layout.endLayout();
    return {used, height};
}

// The position of laid out lines in a box.
struct Lines
{
    QSizeF size;
    double width = 0.0; // of the column in which the lines are aligned
    QPointF topLeft;
};

// A line needs a width before it can be aligned: first measure the text, then align it within the
// wider of text and box.
Lines placeLines(QTextLayout& layout, const PlainText& text, const QRectF& box)
{
    Lines lines;
    lines.size = layOut(layout, text.wraps ? box.width() + WidthTolerance : MaximumLength);
    lines.width = std::max(lines.size.width(), box.width()) + WidthTolerance;
    double left = box.left();
    if (!text.wraps && text.alignment.testFlag(Qt::AlignHCenter)) {
        left -= (lines.width - box.width()) / 2.0;
    } else if (!text.wraps && text.alignment.testFlag(Qt::AlignRight)) {
        left -= lines.width - box.width();
    }
    lines.topLeft = {left, box.top() +
                               verticalOffset(text.alignment, box.height() - lines.size.height())};
    return lines;
}

// Lays out the aligned lines; returns their upper left corner.
QPointF layOutInBox(QTextLayout& layout, const PlainText& text, const QRectF& box)
{
    prepareLayout(layout, text);
    const Lines lines = placeLines(layout, text, box);
    if (!text.wraps) {
        layOut(layout, lines.width);
    }
    return lines.topLeft;
}

// A text in its reference size, and the box and scale in which it fills its own box.
struct Scaled
{
    PlainText text;
    QRectF box;
    double scale = 1.0;
};

std::optional<Scaled> scaledToFill(const PlainText& text, const QRectF& box)
{
    Scaled scaled;
    scaled.text = text;
    scaled.text.wraps = false;
    scaled.text.font.setPixelSize(ReferenceSize);
    const QSizeF size = measureText(scaled.text, 0.0);
    if (size.width() <= 0.0 || size.height() <= 0.0) {
        return std::nullopt;
    }
    scaled.scale = std::min(box.width() / size.width(), box.height() / size.height());
    scaled.box = {0.0, 0.0, box.width() / scaled.scale, box.height() / scaled.scale};
    return scaled;
}

} // namespace

double verticalOffset(Qt::Alignment alignment, double room)
{
    if (alignment.testFlag(Qt::AlignVCenter)) {
        return room / 2.0;
    }
    return alignment.testFlag(Qt::AlignBottom) ? room : 0.0;
}

QFont toFont(const FontValues& values, int size)
{
    QFont font;
    font.setFamilies(familiesFor(values.family));
    font.setPixelSize(std::clamp(size, 1, MaximumFontSize));
    font.setBold(values.bold);
    font.setItalic(values.italic);
    font.setUnderline(values.underline);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QFont toFont(const FontValues& values)
{
    return toFont(values, values.pointSize);
}

QSizeF measureText(const PlainText& text, double width)
{
    QTextLayout layout;
    prepareLayout(layout, text);
    return layOut(layout, text.wraps ? width + WidthTolerance : MaximumLength);
}

void paintText(QPainter& painter, const PlainText& text, const QRectF& box)
{
    QTextLayout layout;
    const QPointF corner = layOutInBox(layout, text, box);
    painter.setPen(text.color);
    layout.draw(&painter, corner);
}

TextLines textLines(const PlainText& text, const QRectF& box)
{
    QTextLayout layout;
    const QPointF corner = layOutInBox(layout, text, box);
    TextLines result{{}, static_cast<double>(text.font.pixelSize())};
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        const QString characters = layout.text().mid(line.textStart(), line.textLength());
        result.lines.append({characters, line.naturalTextRect().translated(corner),
                             corner.y() + line.y() + line.ascent()});
    }
    return result;
}

QRectF textRect(const PlainText& text, const QRectF& box)
{
    QTextLayout layout;
    prepareLayout(layout, text);
    const Lines lines = placeLines(layout, text, box);
    const double room = lines.width - lines.size.width();
    QPointF corner = lines.topLeft;
    if (text.alignment.testFlag(Qt::AlignHCenter)) {
        corner.rx() += room / 2.0;
    } else if (text.alignment.testFlag(Qt::AlignRight)) {
        corner.rx() += room;
    }
    return {corner, lines.size};
}

void paintTextFilling(QPainter& painter, const PlainText& text, const QRectF& box)
{
    const std::optional<Scaled> scaled = scaledToFill(text, box);
    if (!scaled) {
        return;
    }
    painter.save();
    painter.translate(box.topLeft());
    painter.scale(scaled->scale, scaled->scale);
    paintText(painter, scaled->text, scaled->box);
    painter.restore();
}

QRectF fillingTextRect(const PlainText& text, const QRectF& box)
{
    const std::optional<Scaled> scaled = scaledToFill(text, box);
    if (!scaled) {
        return {};
    }
    const QRectF rect = textRect(scaled->text, scaled->box);
    return {box.topLeft() + rect.topLeft() * scaled->scale, rect.size() * scaled->scale};
}

TextLines textLinesFilling(const PlainText& text, const QRectF& box)
{
    const std::optional<Scaled> scaled = scaledToFill(text, box);
    if (!scaled) {
        return {};
    }
    TextLines result = textLines(scaled->text, scaled->box);
    for (TextLine& line : result.lines) {
        line.box = QRectF(box.topLeft() + line.box.topLeft() * scaled->scale,
                          line.box.size() * scaled->scale);
        line.baseline = box.top() + line.baseline * scaled->scale;
    }
    result.fontSize *= scaled->scale;
    return result;
}

} // namespace workbench
