#include "exporting/glabels_fonts.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace exporting {
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

} // namespace exporting
