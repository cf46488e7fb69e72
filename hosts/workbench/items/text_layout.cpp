#include "workbench/items/text_layout.h"

#include "workbench/items/font_families.h"
#include "workbench/items/item_limits.h"

#include <QPainter>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>

namespace workbench {

namespace {

// Longer text is unreadable on any label, but would take long to lay out.
constexpr qsizetype MaximumCharacters = 10'000;
constexpr int MaximumLines = 5'000;

// The font size for the layout of a text that is scaled to its box.
constexpr int ReferenceSize = 100;

// Tolerance for rounding: a line measured to fit must not be broken.
constexpr double WidthTolerance = 0.01;

QTextOption optionFor(const PlainText& text)
{
    QTextOption option(text.alignment & Qt::AlignHorizontal_Mask);
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

// Lays the lines out from top to bottom; returns their total size.
QSizeF layOut(QTextLayout& layout, double width)
{
    double height = 0.0;
    double used = 0.0;
    layout.beginLayout();
    for (int count = 0; count < MaximumLines; ++count) {
        QTextLine line = layout.createLine();
        if (!line.isValid()) {
            break;
        }
        line.setLineWidth(width);
        line.setPosition({0.0, height});
        height += line.height();
        used = std::max(used, line.naturalTextWidth());
    }
    layout.endLayout();
    return {used, height};
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
    prepareLayout(layout, text);
    // A line needs a width before it can be aligned: first measure the text, then align
    // it within the wider of text and box.
    const QSizeF size = layOut(layout, text.wraps ? box.width() + WidthTolerance : MaximumLength);
    const double width = std::max(size.width(), box.width()) + WidthTolerance;
    if (!text.wraps) {
        layOut(layout, width);
    }
    double left = box.left();
    if (!text.wraps && text.alignment.testFlag(Qt::AlignHCenter)) {
        left -= (width - box.width()) / 2.0;
    } else if (!text.wraps && text.alignment.testFlag(Qt::AlignRight)) {
        left -= width - box.width();
    }
    const double top = box.top() + verticalOffset(text.alignment, box.height() - size.height());
    painter.setPen(text.color);
    layout.draw(&painter, {left, top});
}

void paintTextFilling(QPainter& painter, const PlainText& text, const QRectF& box)
{
    PlainText reference = text;
    reference.wraps = false;
    reference.font.setPixelSize(ReferenceSize);
    const QSizeF size = measureText(reference, 0.0);
    if (size.width() <= 0.0 || size.height() <= 0.0) {
        return;
    }
    const double scale = std::min(box.width() / size.width(), box.height() / size.height());
    painter.save();
    painter.translate(box.topLeft());
    painter.scale(scale, scale);
    paintText(painter, reference, {0.0, 0.0, box.width() / scale, box.height() / scale});
    painter.restore();
}

} // namespace workbench
