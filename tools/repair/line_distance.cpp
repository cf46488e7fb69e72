#include "repair/line_distance.h"

#include <QFont>
#include <QFontMetricsF>
#include <QRawFont>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace repair {

namespace {

// Pixels, in which fonts are measured, so that rounding does not count.
constexpr int MeasuredSize = 1000;

// Per font size.
double statedDistance(QFont font, bool withGap)
{
    font.setPixelSize(MeasuredSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    const QRawFont raw = QRawFont::fromFont(font);
    // Table "hhea": after the version, the ascent, the descent, and the gap between lines.
    const QByteArray table = raw.fontTable("hhea");
    if (raw.isValid() && table.isEmpty()) {
        return 1.0; // Type 1: such a font states no distance
    }
    if (table.size() >= 10 && raw.unitsPerEm() > 0.0) {
        const auto value = [&table](qsizetype at) {
            return double(qFromBigEndian<qint16>(table.constData() + at));
        };
        const double sum = value(4) - value(6) + (withGap ? std::max(0.0, value(8)) : 0.0);
        if (sum > 0.0) {
            return sum / raw.unitsPerEm();
        }
    }
    const QFontMetricsF metrics(font);
    const double gap = withGap ? std::max(0.0, metrics.leading()) : 0.0;
    return (metrics.ascent() + metrics.descent() + gap) / MeasuredSize;
}

double measuredShare(const QString& family, bool bold, double size, double pointsPerPixel,
                     bool withGap)
{
    QFont font(family);
    font.setBold(bold);
    font.setPointSizeF(std::max(size * pointsPerPixel, 0.01));
    const QFontMetricsF metrics(font);
    const double rounded = std::ceil(metrics.ascent() + metrics.descent() + metrics.leading());
    return rounded > 0.0 ? statedDistance(font, withGap) * size / rounded : 1.0;
}

} // namespace

double exactLineShare(const QString& family, bool bold, double size, double pointsPerPixel,
                      bool withGap)
{
    // A text has few fonts, and a document many paragraphs.
    static std::map<std::tuple<QString, bool, int, bool>, double> shares;
    const auto key = std::tuple(family, bold, static_cast<int>(std::lround(size * 100.0)), withGap);
    const auto found = shares.find(key);
    return found != shares.end()
               ? found->second
               : shares.emplace(key, measuredShare(family, bold, size, pointsPerPixel, withGap))
                     .first->second;
}

} // namespace repair
