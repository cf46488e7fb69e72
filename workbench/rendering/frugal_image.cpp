#include "workbench/rendering/frugal_image.h"

#include <QHash>

#include <algorithm>
#include <optional>
#include <span>

namespace workbench {

namespace {

constexpr qsizetype kMostColors = 256;

/// The numbers of colours in the order in which they are met.
class ColorNumbers
{
public:
    /// The number of a colour; nothing when there are too many.
    [[nodiscard]] std::optional<uchar> numberOf(QRgb color)
    {
        // Neighbours are mostly alike.
        if (color != m_lastColor || m_colors.isEmpty()) {
            const auto known = m_numbers.constFind(color);
            if (known == m_numbers.constEnd() && m_colors.size() == kMostColors) {
                return std::nullopt;
            }
            m_lastNumber = known != m_numbers.constEnd() ? *known : add(color);
            m_lastColor = color;
        }
        return m_lastNumber;
    }

    [[nodiscard]] const QList<QRgb>& colors() const { return m_colors; }

private:
    uchar add(QRgb color)
    {
        const auto number = static_cast<uchar>(m_colors.size());
        m_colors.append(color);
        m_numbers.insert(color, number);
        return number;
    }

    QHash<QRgb, uchar> m_numbers;
    QList<QRgb> m_colors;
    QRgb m_lastColor = 0;
    uchar m_lastNumber = 0;
};

std::span<const QRgb> pixelsOf(const QImage& image, int y)
{
    return {reinterpret_cast<const QRgb*>(image.constScanLine(y)),
            static_cast<std::size_t>(image.width())};
}

void copyTraits(const QImage& from, QImage& to)
{
    to.setDotsPerMeterX(from.dotsPerMeterX());
    to.setDotsPerMeterY(from.dotsPerMeterY());
    const QStringList keys = from.textKeys();
    for (const QString& key : keys) {
        to.setText(key, from.text(key));
    }
}

// The picture with a table of colours; null when it has too many.
QImage withColorTable(const QImage& image)
{
    QImage result(image.size(), QImage::Format_Indexed8);
    ColorNumbers numbers;
    for (int y = 0; y < result.height(); ++y) {
        uchar* to = result.scanLine(y);
        for (const QRgb color : pixelsOf(image, y)) {
            const auto number = numbers.numberOf(color);
            if (!number) {
                return {};
            }
            *to++ = *number;
        }
    }
    result.setColorTable(numbers.colors());
    copyTraits(image, result);
    return result;
}

bool isOpaque(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        const std::span<const QRgb> pixels = pixelsOf(image, y);
        if (!std::all_of(pixels.begin(), pixels.end(),
                         [](QRgb color) { return qAlpha(color) == 255; })) {
            return false;
        }
    }
    return true;
}

} // namespace

QImage frugalImage(const QImage& image)
{
    // PNG files hold colours that are not premultiplied.
    const QImage plain = image.convertToFormat(QImage::Format_ARGB32);
    const QImage indexed = withColorTable(plain);
    if (!indexed.isNull()) {
        return indexed;
    }
    return isOpaque(plain) ? plain.convertToFormat(QImage::Format_RGB32) : plain;
}

} // namespace workbench
