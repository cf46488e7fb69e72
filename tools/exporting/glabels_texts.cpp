#include "exporting/glabels_texts.h"

#include "exporting/glabels_lines.h"
#include "workbench/items/canvas_item.h"
#include "workbench/items/shape_kinds.h"
#include "workbench/items/text_layout.h"

#include <QCoreApplication>
#include <QGlyphRun>
#include <QGraphicsTextItem>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <utility>

namespace exporting {

using namespace Qt::StringLiterals;
using namespace workbench;

namespace {

/// Lines at equal distances are lines of one text.
constexpr double PitchTolerance = 0.01;

struct GlabelsTextsTr
{
    Q_DECLARE_TR_FUNCTIONS(exporting::Glabels)
};

void noteChanges(ExportFindings& findings, const ItemValues& values, const GlabelsText& written,
                 bool losesUnderline)
{
    const QString kind = shapeCode(values.type);
    const QString wanted = values.font.value_or(FontValues()).family;
    if (losesUnderline) {
        findings.add(Fidelity::Simplified, kind,
                     GlabelsTextsTr::tr("A text from a data source is not underlined."));
    } else if (written.alignment.testFlag(Qt::AlignJustify)) {
        findings.add(Fidelity::Simplified, kind,
                     GlabelsTextsTr::tr("Justified text is aligned left."));
    } else if (!wanted.isEmpty() && wanted != written.family) {
        findings.add(Fidelity::Simplified, kind,
                     GlabelsTextsTr::tr("gLabels knows only installed fonts: \"%1\" became \"%2\".")
                         .arg(wanted, written.family));
    } else {
        findings.add(Fidelity::Exact, kind);
    }
}

void addPlainText(GlabelsDocument& document, ExportFindings& findings, const WalkedItem& item,
                  GlabelsField field)
{
    const ItemValues& values = item.values;
    const FontValues font = values.font.value_or(FontValues());
    const TextStyleValues style = values.textStyle.value_or(TextStyleValues());
    const bool isRich = values.type == KestTypes::RichText;
    const bool fixesWidth = !values.textLabel || (values.textLabel->limiting & 1) != 0;
    const PlainText text{values.text.value_or(TextValues()).text, toFont(font), style.alignment,
                         style.color, isRich || (font.sized && fixesWidth)};
    const QRectF box({0.0, 0.0}, values.box.size);
    const TextLines laid =
        isRich || font.sized ? textLines(text, box) : textLinesFilling(text, box);
    if (laid.lines.isEmpty() || laid.fontSize <= 0.0) {
        return;
    }
    QRawFont face = QRawFont::fromFont(text.font);
    face.setPixelSize(laid.fontSize);
    GlabelsText measured;
    setFont(measured, face);
    // Other records are broken into lines as in our layout.
    if (text.wraps && GlabelsFont(measured).exactWidth(field.longest) > box.width()) {
        field.longest.clear();
    }
    const GlabelsText written =
        addLines(document, item.toPage,
                 {face, style.color, font.underline, style.alignment, box, laid.lines}, field);
    noteChanges(findings, values, written, font.underline && !field.name.isEmpty());
}

/// Whether gLabels has all formats of a document.
bool isSimple(const QTextDocument& document)
{
    const QList<QTextFormat> formats = document.allFormats();
    return document.rootFrame()->childFrames().isEmpty() &&
           std::none_of(formats.begin(), formats.end(), [](const QTextFormat& format) {
               const QTextCharFormat characters = format.toCharFormat();
               return format.isImageFormat() || format.isListFormat() ||
                      format.background().style() != Qt::NoBrush ||
                      format.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth) ||
                      characters.verticalAlignment() != QTextCharFormat::AlignNormal ||
                      characters.fontStrikeOut() || characters.fontOverline() ||
                      characters.fontLetterSpacing() != 0.0 ||
                      characters.fontCapitalization() != QFont::MixedCase;
           });
}

/// A line of a laid out document.
struct DocumentLine
{
    const QTextBlock& block;
    const QTextLine& line;
    QPointF corner; ///< of the block
    QColor color;   ///< of text without its own color
};

void appendRun(QList<FormattedLines>& runs, const DocumentLine& place, int start, int end,
               const QTextCharFormat& format)
{
    const QString characters = place.block.text().mid(start, end - start);
    const QList<QGlyphRun> glyphs = place.block.layout()->glyphRuns(start, end - start);
    if (glyphs.isEmpty() || characters.trimmed().isEmpty()) {
        return;
    }
    const double from = place.line.cursorToX(start);
    const double to = place.line.cursorToX(end);
    const double y = place.corner.y() + place.line.y();
    const QRectF box(place.corner.x() + std::min(from, to), y, std::abs(to - from),
                     place.line.height());
    const bool isUnderlined =
        format.fontUnderline() || format.underlineStyle() != QTextCharFormat::NoUnderline;
    const QBrush brush = format.foreground();
    runs.append({glyphs.first().rawFont(),
                 brush.style() == Qt::NoBrush ? place.color : brush.color(),
                 isUnderlined,
                 Qt::AlignLeft,
                 box,
                 {{characters, box, y + place.line.ascent()}}});
}

/// The characters of one format on a line. Tabs and justified spaces have no fixed width: what they
/// separate becomes several runs.
QList<FormattedLines> runsOf(const DocumentLine& place, Qt::Alignment alignment)
{
    const QString separators = QString(QChar::LineSeparator) + u'\t' +
                               (alignment.testFlag(Qt::AlignJustify) ? u" "_s : QString());
    const QString text = place.block.text();
    const int lineStart = place.line.textStart();
    QList<FormattedLines> runs;
    for (auto it = place.block.begin(); !it.atEnd(); ++it) {
        const int first = it.fragment().position() - place.block.position();
        const int end =
            std::min(first + it.fragment().length(), lineStart + place.line.textLength());
        for (int next = 0, start = std::max(first, lineStart); start < end; start = next + 1) {
            for (next = start; next < end && !separators.contains(text.at(next)); ++next) {
            }
            appendRun(runs, place, start, next, it.fragment().charFormat());
        }
    }
    if (runs.size() == 1 && !text.contains(u'\t') && !alignment.testFlag(Qt::AlignJustify)) {
        runs.first().alignment = alignment & Qt::AlignHorizontal_Mask;
        runs.first().box.setLeft(place.corner.x() + place.line.x());
        runs.first().box.setWidth(place.line.width());
    }
    return runs;
}

/// Whether runs are the lines of one text.
bool areOneText(const QList<FormattedLines>& runs)
{
    const auto lineOf = [&](qsizetype i) { return runs.at(i).lines.first(); };
    const double pitch = runs.size() > 1 ? lineOf(1).baseline - lineOf(0).baseline : 0.0;
    for (qsizetype i = 1; i < runs.size(); ++i) {
        const FormattedLines& run = runs.at(i);
        const FormattedLines& first = runs.first();
        const bool isNext =
            std::abs(lineOf(i).baseline - lineOf(i - 1).baseline - pitch) < PitchTolerance;
        if (!isNext || pitch <= 0.0 || run.font != first.font || run.color != first.color ||
            run.isUnderlined != first.isUnderlined || run.alignment != first.alignment ||
            run.box.left() != first.box.left() || run.box.width() != first.box.width()) {
            return false;
        }
    }
    return true;
}

bool addRichText(GlabelsDocument& document, ExportFindings& findings, const WalkedItem& item)
{
    const TextStyleValues style = item.values.textStyle.value_or(TextStyleValues());
    // The item's own document: HTML does not express all of a layout.
    const auto* painted = dynamic_cast<const QGraphicsTextItem*>(item.item->graphicsItem());
    if (painted == nullptr || !isSimple(*painted->document())) {
        return false;
    }
    QTextDocument& text = *painted->document();
    const QSizeF box = item.values.box.size;
    text.setTextWidth(box.width());
    const double top = verticalOffset(style.alignment, box.height() - text.size().height());
    QList<FormattedLines> runs;
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        const QPointF corner = block.layout()->position() + QPointF(0.0, top);
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            const QTextLine line = block.layout()->lineAt(i);
            runs += runsOf({block, line, corner, style.color}, block.blockFormat().alignment());
        }
    }
    if (areOneText(runs)) {
        for (; runs.size() > 1; runs.removeAt(1)) {
            runs.first().lines.append(runs.at(1).lines);
        }
        findings.add(Fidelity::Exact, shapeCode(item.values.type));
    } else {
        const QList<FormattedLines> lines = std::exchange(runs, {});
        for (const FormattedLines& line : lines) {
            runs += wordsOf(line);
        }
        findings.add(Fidelity::Simplified, shapeCode(item.values.type),
                     GlabelsTextsTr::tr(
                         "A text in several formats became a text for each line, format or word."));
    }
    for (const FormattedLines& run : runs) {
        addLines(document, item.toPage, run, {});
    }
    return true;
}

} // namespace

bool addTextItem(GlabelsDocument& document, ExportFindings& findings, const WalkedItem& item,
                 const GlabelsField& field)
{
    if (item.values.text && !item.values.text->html.isEmpty()) {
        return addRichText(document, findings, item);
    }
    addPlainText(document, findings, item, field);
    return true;
}

void addCaption(GlabelsDocument& document, const QTransform& toPage, const QString& text,
                const QString& field, const barcodes::BarcodeLayout& layout,
                const barcodes::BarcodeStyle& style)
{
    QRawFont face = QRawFont::fromFont(style.font);
    face.setPixelSize(layout.captionPixelSize);
    GlabelsText measured;
    setFont(measured, face);
    const GlabelsFont font(measured);
    QRectF line = layout.caption;
    line.setWidth(font.exactWidth(text));
    addLines(document, toPage,
             {face,
              style.textColor,
              false,
              style.captionAlignment & Qt::AlignHorizontal_Mask,
              layout.caption,
              {{text, line, line.top() + font.ascent()}}},
             {field, {}});
}

} // namespace exporting
