#include "workbench/symbols/symbol_data.h"

#include "limits/svg/svg_limits.h"
#include "limits/svg/svg_sanitizer.h"
#include "limits/svg/svg_values.h"

#include <QRectF>
#include <QRegularExpression>
#include <QStringList>
#include <QSvgRenderer>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace workbench::symbols {

using svglimits::parseSvgLength;
using svglimits::PointsPerUserUnit;
using svglimits::SafeSvg;
using svglimits::SvgLength;
using svglimits::SvgRoot;

namespace {

struct Frame
{
    /// In user units.
    QSizeF size;
    /// What of the drawing's plane is shown in the size.
    QRectF viewBox;
};

[[nodiscard]] QString number(double value)
{
    return QString::number(value, 'g', 12);
}

[[nodiscard]] std::optional<QRectF> parseViewBox(const QString& text)
{
    static const QRegularExpression separators(u"[\\s,]+"_s);
    const QStringList parts = text.split(separators, Qt::SkipEmptyParts);
    if (parts.size() != 4) {
        return std::nullopt;
    }
    double values[4];
    for (int i = 0; i < 4; ++i) {
        bool ok = false;
        values[i] = parts[i].toDouble(&ok);
        if (!ok || !(std::abs(values[i]) <= svglimits::Coordinate)) {
            return std::nullopt;
        }
    }
    if (values[2] <= 0.0 || values[3] <= 0.0) {
        return std::nullopt;
    }
    return QRectF(values[0], values[1], values[2], values[3]);
}

/// A side as the document gives it, in user units; percentages are of the view box.
[[nodiscard]] std::optional<double> givenSide(const QString& text, std::optional<double> whole)
{
    const std::optional<SvgLength> length = parseSvgLength(text);
    if (!length) {
        return std::nullopt;
    }
    if (!length->percent) {
        return length->inUserUnits();
    }
    if (!whole) {
        return std::nullopt;
    }
    return length->value / 100.0 * *whole;
}

/// Alignment of a view box of another aspect ratio within the size: 0 start, 1 end.
[[nodiscard]] double alignment(const QString& aspectRatio, QLatin1String low, QLatin1String high)
{
    if (aspectRatio.contains(low)) {
        return 0.0;
    }
    return aspectRatio.contains(high) ? 1.0 : 0.5;
}

/// The part of the plane that a size shows which has not the view box's proportions: more
/// than the view box, or with "slice" less.
[[nodiscard]] QRectF shownPart(const QRectF& box, const QSizeF& size, const QString& aspectRatio)
{
    if (aspectRatio.contains(u"none")) {
        return box;
    }
    const double byWidth = box.width() / size.width();
    const double byHeight = box.height() / size.height();
    const bool slice = aspectRatio.contains(u"slice");
    const double scale = slice ? std::min(byWidth, byHeight) : std::max(byWidth, byHeight);
    const QSizeF shown = size * scale;
    const QSizeF spare(box.width() - shown.width(), box.height() - shown.height());
    return {box.x() + spare.width() *
                          alignment(aspectRatio, QLatin1String("xMin"), QLatin1String("xMax")),
            box.y() + spare.height() *
                          alignment(aspectRatio, QLatin1String("YMin"), QLatin1String("YMax")),
            shown.width(), shown.height()};
}

[[nodiscard]] Frame framedByViewBox(const SvgRoot& root, const QRectF& box)
{
    std::optional<double> width = givenSide(root.width, box.width());
    std::optional<double> height = givenSide(root.height, box.height());
    if (!width && !height) {
        return {box.size(), box};
    }
    if (!width) {
        width = *height * box.width() / box.height();
    }
    if (!height) {
        height = *width * box.height() / box.width();
    }
    const QSizeF size(*width, *height);
    return {size, size.isEmpty() ? box : shownPart(box, size, root.aspectRatio)};
}

/// A document without a view box counts from its upper left corner; a side that is not given
/// either reaches as far as something is drawn.
[[nodiscard]] Frame framedByContent(const SafeSvg& safe)
{
    const std::optional<double> width = givenSide(safe.root.width, std::nullopt);
    const std::optional<double> height = givenSide(safe.root.height, std::nullopt);
    if (width && height) {
        const QSizeF size(*width, *height);
        return {size, QRectF(QPointF(), size)};
    }
    const QRectF drawn = QSvgRenderer(safe.document({})).viewBoxF();
    if (!width && !height) {
        return {drawn.size(), drawn};
    }
    const QSizeF size(width.value_or(drawn.right()), height.value_or(drawn.bottom()));
    return {size, QRectF(QPointF(), size)};
}

[[nodiscard]] bool isSymbolSize(const QSizeF& points)
{
    return points.width() > 0.0 && points.height() > 0.0 && points.width() <= MaximumSymbolSide &&
           points.height() <= MaximumSymbolSide;
}

[[nodiscard]] QString sizeAttributes(const QSizeF& points, const QRectF& box)
{
    return uR"( width="%1pt" height="%2pt" viewBox="%3 %4 %5 %6" preserveAspectRatio="none")"_s.arg(
        number(points.width()), number(points.height()), number(box.x()), number(box.y()),
        number(box.width()), number(box.height()));
}

} // namespace

std::optional<QByteArray> makeSymbolData(const QByteArray& svg, const QSizeF& target)
{
    const std::optional<SafeSvg> safe = svglimits::sanitizeSvg(svg);
    if (!safe) {
        return std::nullopt;
    }
    const std::optional<QRectF> box = parseViewBox(safe->root.viewBox);
    const Frame frame = box ? framedByViewBox(safe->root, *box) : framedByContent(*safe);
    const QSizeF own = frame.size * PointsPerUserUnit;
    const bool targeted = target.width() > 0.0 && target.height() > 0.0;
    const QSizeF points = targeted ? target : own;
    if (!isSymbolSize(own) || !isSymbolSize(points)) {
        return std::nullopt;
    }
    const QByteArray data = safe->document(sizeAttributes(points, frame.viewBox));
    if (!QSvgRenderer(data).isValid()) {
        return std::nullopt;
    }
    return data;
}

QSizeF naturalSize(const QByteArray& symbolData)
{
    QXmlStreamReader reader(symbolData);
    if (!reader.readNextStartElement() || reader.name() != u"svg") {
        return {0.0, 0.0};
    }
    const QStringView width = reader.attributes().value(QLatin1String("width"));
    const QStringView height = reader.attributes().value(QLatin1String("height"));
    if (!width.endsWith(u"pt") || !height.endsWith(u"pt")) {
        return {0.0, 0.0};
    }
    const QSizeF size(width.chopped(2).toDouble(), height.chopped(2).toDouble());
    return isSymbolSize(size) ? size : QSizeF(0.0, 0.0);
}

} // namespace workbench::symbols
