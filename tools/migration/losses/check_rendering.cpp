#include "migration/losses/check_rendering.h"

#include "workbench/canvas/canvas.h"
#include "workbench/rendering/page_painter.h"

#include <QHash>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

// Of the picture that is measured.
constexpr int PictureSide = 400;
// The least contrast of large texts in accessibility guidelines.
constexpr double LeastContrast = 3.0;
// Of texts whose color in the document is unknown: below, they cannot be seen at all.
constexpr double LeastUnknownContrast = 1.5;
// Of 255: a pixel that changes less looks like its ground.
constexpr int VisibleDifference = 6;
// Points: a drawing has the width of its pen more than the item that it replaces.
constexpr double DrawingTolerance = 6.0;
// Below this luminance, from 0 to 255, automatic text is white.
constexpr int DarkGround = 62;

double luminance(const QColor& color)
{
    const auto linear = [](double channel) {
        constexpr double linearLimit = 0.03928;
        return channel <= linearLimit ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

QColor documentColor(const Appearance& appearance)
{
    if (appearance.textColor.isValid()) {
        return appearance.textColor;
    }
    const bool isDark = appearance.fill.isValid() && qGray(appearance.fill.rgb()) <= DarkGround;
    return isDark ? Qt::white : Qt::black;
}

/// What to measure on one item.
struct Candidate
{
    const Appearance* text = nullptr;  ///< of a text
    const Appearance* shape = nullptr; ///< of a shape
};

using Candidates = QHash<qsizetype, Candidate>;

bool isNear(const QRectF& a, const QRectF& b)
{
    return std::max({std::abs(a.left() - b.left()), std::abs(a.right() - b.right()),
                     std::abs(a.top() - b.top()), std::abs(a.bottom() - b.bottom())}) <
           DrawingTolerance;
}

// A fill that items do not have is drawn. The item above the drawing only carries the text.
bool hasDrawing(const Pair& pair, const LabelFacts& label)
{
    const QRectF box = label.items.at(pair.item).outline.boundingRect();
    return std::any_of(label.items.begin(), label.items.end(), [&box](const ItemFacts& item) {
        return item.objectClass == ObjectClass::Symbol && item.hasContent &&
               isNear(item.outline.boundingRect(), box);
    });
}

// Where the place of an object follows from the text around it, its pair is not certain.
bool isInPlace(const Pair& pair, const ItemFacts& item)
{
    const QRectF place = pair.appearance->outline.boundingRect();
    return !place.isEmpty() && isNear(place, item.outline.boundingRect());
}

// A color that the document shows and the label does not. White is that of most pages.
void checkFills(const Matching& matching, LabelFacts& label)
{
    for (const Pair& pair : matching.shapes) {
        ItemFacts& item = label.items[pair.item];
        const QColor& wanted = pair.appearance->fill;
        const bool isShown = pair.appearance->isFilled.value_or(false) && wanted.isValid() &&
                             wanted.rgb() != QColor(Qt::white).rgb();
        if (isShown && item.objectClass == ObjectClass::Shape && !item.isFilled &&
            isInPlace(pair, item) && !hasDrawing(pair, label)) {
            item.changes.add(LossKind::FillSimplified);
            label.tallies[LossKind::FillSimplified].addDetail(wanted.name() + u" → –"_s);
        }
    }
}

// A text whose color or ground is not that of the document; a shape whose fill was simplified.
Candidates candidatesOf(const Matching& matching, const LabelFacts& label)
{
    Candidates candidates;
    for (const Pair& pair : matching.shapes) {
        const ItemFacts& item = label.items.at(pair.item);
        const bool isFilled = pair.appearance->isFilled.value_or(item.isFilled);
        const bool isSimplified = isFilled && !pair.appearance->fill.isValid();
        const bool isMeasured =
            isSimplified && item.objectClass == ObjectClass::Shape && item.hasContent;
        if (isMeasured && !hasDrawing(pair, label)) {
            candidates[pair.item].shape = pair.appearance;
        }
    }
    for (const Pair& pair : matching.texts) {
        const ItemFacts& item = label.items.at(pair.item);
        // The contrast with several colors is not defined.
        const bool isKnown = item.textColor.isValid() && pair.isExact;
        const bool hasOtherColor =
            isKnown && item.textColor.rgb() != documentColor(*pair.appearance).rgb();
        const bool hasOtherGround = isKnown && pair.appearance->isFilled.value_or(false) &&
                                    !pair.appearance->fill.isValid();
        if (hasOtherColor || hasOtherGround) {
            candidates[pair.item].text = pair.appearance;
        }
    }
    return candidates;
}

/// The label, painted item by item.
class Measurement
{
public:
    Measurement(const workbench::Canvas& canvas, LabelFacts& label)
        : m_canvas(canvas)
        , m_label(label)
    {
        const QSizeF page = canvas.page().size;
        m_scale = PictureSide / std::max({page.width(), page.height(), 1.0});
        const QSize size(std::max(1, static_cast<int>(page.width() * m_scale)),
                         std::max(1, static_cast<int>(page.height() * m_scale)));
        m_image = QImage(size, QImage::Format_RGB32);
        m_image.fill(canvas.canvasBackgroundColor());
    }

    void run(const Candidates& candidates)
    {
        QHash<const workbench::CanvasItem*, qsizetype> indices;
        for (const workbench::CanvasItem* item : m_canvas.items()) {
            indices.insert(item, indices.size());
        }
        qsizetype left = candidates.size();
        for (const workbench::CanvasItem* item : m_canvas.itemsFromBottom()) {
            const qsizetype index = indices.value(item);
            const auto candidate = candidates.constFind(index);
            if (candidate == candidates.constEnd()) {
                paint(*item);
                continue;
            }
            measure(*item, index, *candidate);
            if (--left == 0) {
                return;
            }
        }
    }

private:
    void paint(const workbench::CanvasItem& item)
    {
        if (!workbench::isOnPage(item, m_canvas)) {
            return;
        }
        QPainter painter(&m_image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(m_scale, m_scale);
        workbench::paintItem(painter, item);
    }

    [[nodiscard]] QRect areaOf(const ItemFacts& item) const
    {
        const QRectF box = item.outline.boundingRect();
        return QRectF(box.topLeft() * m_scale, box.size() * m_scale)
            .toAlignedRect()
            .intersected(m_image.rect());
    }

    void measure(const workbench::CanvasItem& item, qsizetype index, const Candidate& candidate)
    {
        ItemFacts& facts = m_label.items[index];
        const QRect area = areaOf(facts);
        if (area.isEmpty()) {
            return paint(item);
        }
        const QImage before = m_image.copy(area);
        paint(item);
        if (candidate.shape != nullptr && !differs(before, m_image.copy(area))) {
            facts.changes.add(LossKind::Invisible);
        }
        if (candidate.text != nullptr) {
            checkTextContrast(facts.textGround.isValid() ? facts.textGround : groundOf(before),
                              *candidate.text, facts);
        }
    }

    static bool differs(const QImage& before, const QImage& after)
    {
        for (int y = 0; y < before.height(); ++y) {
            for (int x = 0; x < before.width(); ++x) {
                const QRgb a = before.pixel(x, y);
                const QRgb b = after.pixel(x, y);
                if (std::abs(qRed(a) - qRed(b)) > VisibleDifference ||
                    std::abs(qGreen(a) - qGreen(b)) > VisibleDifference ||
                    std::abs(qBlue(a) - qBlue(b)) > VisibleDifference) {
                    return true;
                }
            }
        }
        return false;
    }

    // The most frequent color.
    static QColor groundOf(const QImage& area)
    {
        QHash<QRgb, int> counts;
        QRgb best = area.pixel(0, 0);
        for (int y = 0; y < area.height(); ++y) {
            for (int x = 0; x < area.width(); ++x) {
                const QRgb color = area.pixel(x, y);
                // In two steps: an insertion may move the other count.
                const int count = ++counts[color];
                if (count > counts.value(best)) {
                    best = color;
                }
            }
        }
        return QColor(best);
    }

    // A text without contrast in the document was not lost.
    void checkTextContrast(const QColor& ground, const Appearance& text, ItemFacts& item)
    {
        const QColor original = text.fill.isValid() ? text.fill : ground;
        const bool wasReadable =
            !text.isColorKnown || contrast(documentColor(text), original) >= LeastContrast;
        const double least = text.isColorKnown ? LeastContrast : LeastUnknownContrast;
        if (wasReadable && contrast(item.textColor, ground) < least) {
            item.changes.add(LossKind::TextUnreadable);
            m_label.tallies[LossKind::TextUnreadable].addDetail(item.text.simplified());
        }
    }

    const workbench::Canvas& m_canvas;
    LabelFacts& m_label;
    double m_scale = 1.0;
    QImage m_image;
};

} // namespace

void checkRendering(const workbench::Canvas& canvas, const Matching& matching, LabelFacts& label)
{
    checkFills(matching, label);
    const Candidates candidates = candidatesOf(matching, label);
    if (!candidates.isEmpty()) {
        Measurement(canvas, label).run(candidates);
    }
}

} // namespace migration
