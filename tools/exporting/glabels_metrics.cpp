#include "exporting/glabels_metrics.h"

#include <QFontDatabase>

#include <cmath>

namespace exporting {
namespace {

constexpr int LargeSize = 1000;
/// A half is rounded up, even if it is a little less because of rounding errors.
constexpr double HalfPoint = 0.5 + 1e-4;

QFont largeFont(const QString& family, bool bold, bool italic)
{
    QFont font(family);
    font.setPixelSize(LargeSize);
    font.setBold(bold);
    font.setItalic(italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace

GlabelsMetrics::GlabelsMetrics(const QString& family, bool bold, bool italic, double size)
    : m_metrics(largeFont(family, bold, italic))
    , m_scale(size / LargeSize)
{}

double GlabelsMetrics::ascent() const
{
    return m_metrics.ascent() * m_scale;
}

double GlabelsMetrics::height() const
{
    return (m_metrics.ascent() + m_metrics.descent()) * m_scale;
}

double GlabelsMetrics::advance(const QString& characters) const
{
    auto advance = m_advances.constFind(characters);
    if (advance == m_advances.constEnd()) {
        advance = m_advances.insert(characters, m_metrics.horizontalAdvance(characters));
    }
    return *advance;
}

double GlabelsMetrics::width(const QString& text, double factor) const
{
    double width = 0.0;
    double before = 0.0; // half the kerning to the character before: both share it
    for (qsizetype i = 0; i < text.size(); ++i) {
        const double own = advance(text.mid(i, 1));
        const double after =
            i + 1 < text.size()
                ? (advance(text.mid(i, 2)) - own - advance(text.mid(i + 1, 1))) / 2.0
                : 0.0;
        width += std::floor((own + before + after) * m_scale * factor + HalfPoint);
        before = after;
    }
    return width;
}

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

} // namespace exporting
