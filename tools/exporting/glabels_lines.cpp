#include "exporting/glabels_lines.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace exporting {

using workbench::TextLine;

namespace {

constexpr int LargeSize = 1000;
constexpr double Unlimited = 1e7;
/// Our layout paints no more characters of a text.
constexpr qsizetype MeasuredCharacters = 10'000;
/// A half is rounded up, even if it is a little less because of rounding errors.
constexpr double HalfPoint = 0.5 + 1e-4;

/// The name of an installed family with its capitals, which gLabels requires; the name itself if it
/// is not installed.
QString installedFamily(const QString& name)
{
    static const QHash<QString, QString> families = [] {
        QHash<QString, QString> names;
        for (const QString& family : QFontDatabase::families()) {
            names.insert(family.toLower(), family);
        }
        return names;
    }();
    return families.value(name.toLower(), name);
}

/// Keeps a text from moving by a point if its place is whole points, except for a rounding error.
constexpr double HeightTolerance = 0.01;
/// A line that gLabels measures a little wider than calculated would be broken.
constexpr double WidthTolerance = 1.03;
/// Points. Letters that are farther from their places look wrong.
constexpr double NoticeableShift = 1.0;

/// The box, wide enough for a line of this width in gLabels. It grows away from the aligned edge.
QRectF widened(const QRectF& box, double width, Qt::Alignment alignment)
{
    const double missing = std::max(0.0, width * WidthTolerance + 1.0 - box.width());
    const double left = alignment.testFlag(Qt::AlignHCenter) ? missing / 2.0
                        : alignment.testFlag(Qt::AlignRight) ? missing
                                                             : 0.0;
    return box.adjusted(-left, 0.0, missing - left, 0.0);
}

/// gLabels has no underlined text.
void underline(GlabelsDocument& document, const QTransform& toPage, const FormattedLines& text)
{
    for (const TextLine& line : text.lines) {
        const double y = line.baseline + text.font.underlinePosition();
        if (line.box.width() > 0.0) {
            document.addLine(toPage.map(QPointF(line.box.left(), y)),
                             toPage.map(QPointF(line.box.right(), y)),
                             {text.color, text.font.lineThickness()});
        }
    }
}

QString withoutBreaks(const TextLine& line)
{
    return QString(line.text).remove(QChar::LineSeparator);
}

} // namespace

void setFont(GlabelsText& text, const QRawFont& font)
{
    text.family = installedFamily(font.familyName());
    text.size = font.pixelSize();
    text.bold = font.weight() > QFont::Medium;
    text.italic = font.style() != QFont::StyleNormal;
}

GlabelsFont::GlabelsFont(const GlabelsText& text)
    : m_large(text.family)
    , m_scale(text.size / LargeSize)
{
    m_large.setPixelSize(LargeSize);
    m_large.setBold(text.bold);
    m_large.setItalic(text.italic);
    m_large.setHintingPreference(QFont::PreferNoHinting);
    const QFontMetricsF metrics(m_large);
    m_ascent = metrics.ascent() * m_scale;
    m_height = (metrics.ascent() + metrics.descent()) * m_scale;
}

/// In the large size, with kerning.
QList<double> GlabelsFont::advances(const QString& line) const
{
    QTextLayout layout(line.left(MeasuredCharacters), m_large);
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::NoWrap);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    option.setUseDesignMetrics(true);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine laid = layout.createLine();
    if (!laid.isValid()) {
        return {};
    }
    laid.setLineWidth(Unlimited);
    layout.endLayout();
    QList<double> edges{laid.naturalTextWidth()};
    for (const QGlyphRun& run : laid.glyphRuns()) {
        for (const QPointF& position : run.positions()) {
            edges.append(position.x());
        }
    }
    std::sort(edges.begin(), edges.end());
    std::adjacent_difference(edges.begin(), edges.end(), edges.begin());
    return edges.mid(1);
}

double GlabelsFont::width(const QString& line) const
{
    const QList<double> all = advances(line);
    return std::accumulate(all.begin(), all.end(), 0.0, [this](double sum, double each) {
        return sum + std::floor(each * m_scale + HalfPoint);
    });
}

double GlabelsFont::exactWidth(const QString& line) const
{
    const QList<double> all = advances(line);
    return std::accumulate(all.begin(), all.end(), 0.0) * m_scale;
}

GlabelsText addLines(GlabelsDocument& document, const QTransform& toPage,
                     const FormattedLines& text, const GlabelsField& field)
{
    GlabelsText written;
    setFont(written, text.font);
    written.field = field.name;
    written.color = text.color;
    written.alignment = text.alignment;
    const GlabelsFont font(written);
    if (text.lines.size() > 1) {
        written.lineGap = text.lines.at(1).baseline - text.lines.at(0).baseline - font.height();
    }
    double widest = font.width(field.longest);
    for (const TextLine& line : text.lines) {
        written.lines.append(withoutBreaks(line));
        widest = std::max(widest, font.width(written.lines.last()));
    }
    QRectF box = widened(text.box, widest, text.alignment);
    box.setHeight(box.height() + HeightTolerance);
    // gLabels measures the height of a text in whole points, and places it at whole points from the
    // upper edge of the box.
    const double height = font.height() * static_cast<double>(text.lines.size()) +
                          written.lineGap * static_cast<double>(text.lines.size() - 1);
    const double offset =
        std::trunc(workbench::verticalOffset(text.alignment, box.height() - std::ceil(height)));
    box.moveTop(text.lines.first().baseline - font.ascent() - offset);
    document.addText(box, toPage, written);
    if (text.isUnderlined && field.name.isEmpty()) {
        underline(document, toPage, text);
    }
    return written;
}

QList<FormattedLines> wordsOf(const FormattedLines& run)
{
    GlabelsText format;
    setFont(format, run.font);
    const GlabelsFont font(format);
    const TextLine& line = run.lines.first();
    const QString text = withoutBreaks(line);
    const bool isShifted = std::abs(font.width(text) - line.box.width()) > NoticeableShift;
    // The line under words has no gaps.
    if (!isShifted || run.isUnderlined || text.isRightToLeft()) {
        return {run};
    }
    QList<FormattedLines> words;
    qsizetype end = 0;
    for (qsizetype start = 0; start < text.size(); start = end + 1) {
        end = text.indexOf(u' ', start);
        end = end < 0 ? text.size() : end;
        if (end > start) {
            const QString word = text.mid(start, end - start);
            QRectF box = line.box;
            box.moveLeft(box.left() + font.exactWidth(text.left(start)));
            box.setWidth(font.exactWidth(word));
            // What is centered is wrong by the same length on both sides.
            words.append({run.font,
                          run.color,
                          run.isUnderlined,
                          Qt::AlignHCenter,
                          box,
                          {{word, box, line.baseline}}});
        }
    }
    return words;
}

} // namespace exporting
