#include "exporting/glabels_text_boxes.h"
#include "workbench/items/canvas_item.h"
#include "workbench/items/shape_kinds.h"
#include "workbench/items/text_layout.h"

#include <QCoreApplication>
#include <QGlyphRun>
#include <QGraphicsTextItem>
#include <QRawFont>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextList>

#include <algorithm>
#include <array>
#include <cmath>

namespace exporting {

using namespace Qt::StringLiterals;
using namespace workbench;

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("exporting::Glabels", text);
}

/// Sizes that fitSize() tries, and how much better they must be.
constexpr std::array SizeFactors{0.9975, 1.0025, 0.995, 1.005, 0.99, 1.01};
constexpr double NoticeableGain = 0.7;
/// Points that a line may be wider than calculated.
constexpr double Tolerance = 1.0;

bool isSimple(const QTextCharFormat& format)
{
    return !format.isImageFormat() && format.background().style() == Qt::NoBrush &&
           format.verticalAlignment() == QTextCharFormat::AlignNormal && !format.fontStrikeOut() &&
           !format.fontOverline() && format.fontLetterSpacing() == 0.0 &&
           format.fontCapitalization() == QFont::MixedCase;
}

bool isSimple(const QTextBlock& block)
{
    const QTextBlockFormat format = block.blockFormat();
    if (block.textList() != nullptr || format.background().style() != Qt::NoBrush ||
        format.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth)) {
        return false;
    }
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        if (!isSimple(it.fragment().charFormat())) {
            return false;
        }
    }
    return true;
}

bool isSimple(const QTextDocument& text)
{
    if (!text.rootFrame()->childFrames().isEmpty()) {
        return false;
    }
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        if (!isSimple(block)) {
            return false;
        }
    }
    return true;
}

/// The characters of one format on one line.
struct Run
{
    GlabelsText text;
    QRectF box;                  ///< as we paint it
    double baseline = 0.0;       ///< y
    double width = 0.0;          ///< in gLabels
    double underline = 0.0;      ///< distance from the baseline
    double underlineWidth = 0.0; ///< 0: none
};

/// A line of a laid out document.
struct Line
{
    const QTextBlock& block;
    const QTextLine& line;
    QPointF corner; ///< of the block
    QColor color;   ///< of text without its own color
};

bool isUnderlined(const QTextCharFormat& format)
{
    return format.fontUnderline() || format.underlineStyle() != QTextCharFormat::NoUnderline;
}

void appendRun(QList<Run>& runs, const Line& place, int start, int end,
               const QTextCharFormat& format)
{
    const QString characters = place.block.text().mid(start, end - start);
    const QList<QGlyphRun> glyphs = place.block.layout()->glyphRuns(start, end - start);
    if (glyphs.isEmpty() || characters.trimmed().isEmpty()) {
        return;
    }
    const QRawFont font = glyphs.first().rawFont();
    const double from = place.line.cursorToX(start);
    const double to = place.line.cursorToX(end);
    Run run;
    run.text.lines = {characters};
    run.text.family = installedFamily(font.familyName());
    run.text.size = font.pixelSize();
    run.text.bold = format.font().bold();
    run.text.italic = format.font().italic();
    const QBrush brush = format.foreground();
    run.text.color = brush.style() == Qt::NoBrush ? place.color : brush.color();
    fitSize(run.text, std::abs(to - from));
    const GlabelsMetrics metrics = metricsOf(run.text);
    run.width = metrics.width(characters);
    run.baseline = place.corner.y() + place.line.y() + place.line.ascent();
    run.box = QRectF(place.corner.x() + std::min(from, to), run.baseline - metrics.ascent(),
                     std::abs(to - from), metrics.height());
    run.underline = font.underlinePosition();
    run.underlineWidth = isUnderlined(format) ? font.lineThickness() : 0.0;
    runs.append(run);
}

/// Appends what is between separators.
void appendParts(QList<Run>& runs, const Line& place, int start, int end,
                 const QTextCharFormat& format, const QString& separators)
{
    const QString text = place.block.text();
    for (int next = start; start < end; start = next + 1) {
        for (next = start; next < end && !separators.contains(text.at(next)); ++next) {
        }
        appendRun(runs, place, start, next, format);
    }
}

/// The runs of a line. Tabs and justified spaces have no fixed width: what they separate becomes
/// several texts.
QList<Run> runsOf(const Line& place, bool isJustified)
{
    const QString separators =
        QString(QChar::LineSeparator) + u'\t' + (isJustified ? u" "_s : QString());
    const int lineStart = place.line.textStart();
    const int lineEnd = lineStart + place.line.textLength();
    QList<Run> runs;
    for (auto it = place.block.begin(); !it.atEnd(); ++it) {
        const int first = it.fragment().position() - place.block.position();
        const int end = std::min(first + it.fragment().length(), lineEnd);
        appendParts(runs, place, std::max(first, lineStart), end, it.fragment().charFormat(),
                    separators);
    }
    return runs;
}

/// Moves runs that follow each other, because gLabels may measure them wider or narrower.
void closeUp(QList<Run>& runs, Qt::Alignment alignment)
{
    double excess = 0.0;
    for (const Run& run : runs) {
        excess += run.width - run.box.width();
    }
    double shift = 0.0;
    if (alignment.testFlag(Qt::AlignHCenter)) {
        shift = -excess / 2.0;
    } else if (alignment.testFlag(Qt::AlignRight)) {
        shift = -excess;
    }
    for (Run& run : runs) {
        run.box.translate(shift, 0.0);
        shift += run.width - run.box.width();
    }
}

void addRuns(GlabelsDocument& document, const QTransform& toPage, const QList<Run>& runs)
{
    for (const Run& run : runs) {
        document.addText(widened(run.box, run.width, Qt::AlignLeft), toPage, run.text);
        if (run.underlineWidth > 0.0) {
            const double y = run.baseline + run.underline;
            addUnderline(document, toPage, {run.box.left(), y, run.box.left() + run.width, y},
                         {run.text.color, run.underlineWidth});
        }
    }
}

void addBlock(GlabelsDocument& document, const QTransform& toPage, const QTextBlock& block,
              const QPointF& corner, const QColor& color)
{
    const Qt::Alignment alignment = block.blockFormat().alignment();
    const bool isJustified = alignment.testFlag(Qt::AlignJustify);
    for (int i = 0; i < block.layout()->lineCount(); ++i) {
        const QTextLine line = block.layout()->lineAt(i);
        QList<Run> runs = runsOf({block, line, corner, color}, isJustified);
        if (!isJustified && !block.text().contains(u'\t')) {
            closeUp(runs, alignment);
        }
        addRuns(document, toPage, runs);
    }
}

} // namespace

QRectF widened(const QRectF& box, double width, Qt::Alignment alignment)
{
    const double missing = std::max(0.0, width + Tolerance - box.width());
    if (alignment.testFlag(Qt::AlignHCenter)) {
        return box.adjusted(-missing / 2.0, 0.0, missing / 2.0, 0.0);
    }
    return alignment.testFlag(Qt::AlignRight) ? box.adjusted(-missing, 0.0, 0.0, 0.0)
                                              : box.adjusted(0.0, 0.0, missing, 0.0);
}

GlabelsMetrics metricsOf(const GlabelsText& text)
{
    return {text.family, text.bold, text.italic, text.size};
}

void fitSize(GlabelsText& text, double ours)
{
    const GlabelsMetrics metrics = metricsOf(text);
    const auto difference = [&](double factor) {
        double width = 0.0;
        for (const QString& line : text.lines) {
            width += metrics.width(line, factor);
        }
        return std::abs(width - ours);
    };
    double best = 1.0;
    double least = difference(1.0) * NoticeableGain;
    for (const double factor : SizeFactors) {
        if (difference(factor) < least) {
            least = difference(factor);
            best = factor;
        }
    }
    text.size *= best;
}

void addUnderline(GlabelsDocument& document, const QTransform& toPage, const QLineF& line,
                  const GlabelsPen& pen)
{
    document.addLine(toPage.map(line.p1()), toPage.map(line.p2()), pen);
}

bool addRichText(GlabelsDocument& document, ExportFindings& findings, const WalkedItem& item)
{
    const ItemValues& values = item.values;
    const TextStyleValues style = values.textStyle.value_or(TextStyleValues());
    // The item's own document: HTML does not express all of a layout.
    const auto* painted = dynamic_cast<const QGraphicsTextItem*>(item.item->graphicsItem());
    if (painted == nullptr || !isSimple(*painted->document())) {
        return false;
    }
    QTextDocument& text = *painted->document();
    const QSizeF box = values.box.size;
    text.setTextWidth(box.width());
    const double top = verticalOffset(style.alignment, box.height() - text.size().height());
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        addBlock(document, item.toPage, block, block.layout()->position() + QPointF(0.0, top),
                 style.color);
    }
    findings.add(Fidelity::Simplified, shapeCode(values.type),
                 tr("A text in several formats became a text for each line and format."));
    return true;
}

} // namespace exporting
