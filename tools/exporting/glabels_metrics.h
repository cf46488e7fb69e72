#pragma once

#include <QFontMetricsF>
#include <QHash>
#include <QString>

namespace exporting {

/// How gLabels measures a font. It rounds the advance of each glyph to whole points, but not the
/// height of lines; our own layout does the opposite. Lengths are in points.
class GlabelsMetrics
{
public:
    GlabelsMetrics(const QString& family, bool bold, bool italic, double size);

    /// From the upper edge of a line to its baseline.
    [[nodiscard]] double ascent() const;
    /// Of a line.
    [[nodiscard]] double height() const;
    [[nodiscard]] double width(const QString& text) const { return width(text, 1.0); }
    /// In a size that is larger by a factor.
    [[nodiscard]] double width(const QString& text, double factor) const;

private:
    [[nodiscard]] double advance(const QString& characters) const;

    QFontMetricsF m_metrics; ///< in a large size, in which nothing is rounded
    double m_scale;
    mutable QHash<QString, double> m_advances; ///< of characters and pairs: shaping takes time
};

/// The name of an installed family with its capitals, which gLabels requires; the name itself if it
/// is not installed.
[[nodiscard]] QString installedFamily(const QString& name);

} // namespace exporting
