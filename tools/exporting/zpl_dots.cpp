#include "exporting/zpl_dots.h"

#include <QPainter>

#include <algorithm>
#include <numeric>

namespace exporting {
namespace {

bool isPrintedAt(const QImage& dots, int x, int y)
{
    return dots.pixelIndex(x, y) != 0;
}

} // namespace

QRect inkOf(const QImage& dots)
{
    QRect ink;
    for (int y = 0; y < dots.height(); ++y) {
        for (int x = 0; x < dots.width(); ++x) {
            if (isPrintedAt(dots, x, y)) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

void erase(QImage& dots, const QRect& area)
{
    QPainter(&dots).fillRect(area, Qt::color0);
}

bool isFilled(const QImage& dots, const QRect& area)
{
    QImage gaps = dots.copy(area);
    gaps.invertPixels();
    return !area.isEmpty() && inkOf(gaps).isEmpty();
}

QList<int> runsIn(const QImage& dots, const QRect& area, int y)
{
    QList<int> runs{1};
    for (int x = area.left() + 1; x <= area.right(); ++x) {
        if (isPrintedAt(dots, x, y) == isPrintedAt(dots, x - 1, y)) {
            ++runs.last();
        } else {
            runs.append(1);
        }
    }
    return runs;
}

int moduleOf(const QImage& dots, const QRect& area)
{
    int module = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (const int run : runsIn(dots, area, y)) {
            module = std::gcd(module, run);
        }
    }
    return module;
}

QRect barsOf(const QImage& dots, QRect area)
{
    int y = area.top() + 1;
    while (y <= area.bottom() && dots.copy(area.left(), y, area.width(), 1) ==
                                     dots.copy(area.left(), area.top(), area.width(), 1)) {
        ++y;
    }
    area.setBottom(y - 1);
    // A caption may be wider than the bars.
    int left = area.right();
    int right = area.left();
    for (int x = area.left(); x <= area.right(); ++x) {
        if (isPrintedAt(dots, x, area.top())) {
            left = std::min(left, x);
            right = std::max(right, x);
        }
    }
    return {QPoint(left, area.top()), QPoint(right, area.bottom())};
}

} // namespace exporting
