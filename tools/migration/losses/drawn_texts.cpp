#include "migration/losses/drawn_texts.h"

#include "migration/losses/item_losses.h"
#include "migration/losses/polygons.h"
#include "workbench/canvas/canvas.h"
#include "workbench/rendering/page_painter.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>

#include <limits>
#include <utility>

namespace migration {

namespace {

// The ink of letters between the ascent and the descent of their font: accents are above it.
constexpr double InkAscent = 0.8;
constexpr double InkDescent = 0.9;
// Text on both sides of a wider gap is not one piece: another text may be in the gap.
constexpr qsizetype WidestGap = 1;

/// The part of a text between wide gaps.
struct Piece
{
    qsizetype begin = 0;
    qsizetype end = 0;
};

QList<Piece> piecesOf(const QString& text)
{
    QList<Piece> pieces;
    for (qsizetype index = 0; index < text.size(); ++index) {
        if (text.at(index).isSpace()) {
            continue;
        }
        if (pieces.isEmpty() || index - pieces.constLast().end > WidestGap) {
            pieces.append({index, index});
        }
        pieces.last().end = index + 1;
    }
    return pieces;
}

/// Notes where text is painted, and nothing else.
class TextEngine final : public QPaintEngine
{
public:
    TextEngine()
        : QPaintEngine(QPaintEngine::AllFeatures)
    {}

    [[nodiscard]] QList<QPolygonF> takeTexts() { return std::exchange(m_texts, {}); }

    bool begin(QPaintDevice* device) override { return device != nullptr; }
    bool end() override { return true; }
    [[nodiscard]] Type type() const override { return QPaintEngine::User; }
    void updateState(const QPaintEngineState& changes) override { Q_UNUSED(changes) }

    void drawTextItem(const QPointF& position, const QTextItem& item) override
    {
        const QString text = item.text();
        const QList<Piece> pieces = piecesOf(text);
        if (pieces.isEmpty()) {
            return;
        }
        const bool isComplete = pieces.size() == 1 && pieces.constFirst().begin == 0 &&
                                pieces.constFirst().end == text.size();
        if (isComplete || item.renderFlags().testFlag(QTextItem::RightToLeft)) {
            return add(position, item, 0.0, item.width());
        }
        const QFontMetricsF metrics(item.font());
        const double total = metrics.horizontalAdvance(text);
        const double scale = total > 0.0 ? item.width() / total : 0.0;
        for (const Piece& piece : pieces) {
            add(position, item, metrics.horizontalAdvance(text.left(piece.begin)) * scale,
                metrics.horizontalAdvance(text.left(piece.end)) * scale);
        }
    }

    void drawPath(const QPainterPath& path) override { Q_UNUSED(path) }
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override
    {
        Q_UNUSED(points)
        Q_UNUSED(count)
        Q_UNUSED(mode)
    }
    using QPaintEngine::drawPolygon;
    void drawPixmap(const QRectF& target, const QPixmap& pixmap, const QRectF& source) override
    {
        Q_UNUSED(target)
        Q_UNUSED(pixmap)
        Q_UNUSED(source)
    }
    void drawImage(const QRectF& target, const QImage& image, const QRectF& source,
                   Qt::ImageConversionFlags flags) override
    {
        Q_UNUSED(target)
        Q_UNUSED(image)
        Q_UNUSED(source)
        Q_UNUSED(flags)
    }
    void drawTiledPixmap(const QRectF& target, const QPixmap& pixmap,
                         const QPointF& offset) override
    {
        Q_UNUSED(target)
        Q_UNUSED(pixmap)
        Q_UNUSED(offset)
    }

private:
    void add(const QPointF& baseline, const QTextItem& item, double from, double to)
    {
        const double ascent = item.ascent() * InkAscent;
        const QRectF ink(baseline.x() + from, baseline.y() - ascent, to - from,
                         ascent + item.descent() * InkDescent);
        if (!ink.isEmpty()) {
            m_texts.append(painter()->combinedTransform().map(cornersOf(ink)));
        }
    }

    QList<QPolygonF> m_texts;
};

/// A sheet measured in points.
class TextDevice final : public QPaintDevice
{
public:
    [[nodiscard]] QPaintEngine* paintEngine() const override { return &m_engine; }
    [[nodiscard]] QList<QPolygonF> takeTexts() { return m_engine.takeTexts(); }

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override
    {
        constexpr int side = 10'000;
        constexpr int pointsPerInch = 72;
        switch (metric) {
        case PdmDepth:
            return 32;
        case PdmNumColors:
            return std::numeric_limits<int>::max();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return pointsPerInch;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return side;
        }
    }

private:
    mutable TextEngine m_engine;
};

} // namespace

QList<DrawnText> drawnTexts(const workbench::Canvas& canvas, const LabelFacts& label)
{
    QList<DrawnText> texts;
    TextDevice device;
    QPainter painter(&device);
    const QList<workbench::CanvasItem*>& items = canvas.items();
    for (qsizetype item = 0; item < items.size(); ++item) {
        const ItemFacts& facts = label.items.at(item);
        if (facts.objectClass != ObjectClass::Text || !facts.hasContent) {
            continue;
        }
        workbench::paintItem(painter, *items.at(item));
        for (const QPolygonF& ink : device.takeTexts()) {
            texts.append({ink, item});
        }
    }
    return texts;
}

} // namespace migration
