#include "workbench/pictures/compact_image.h"

#include <QList>

#include <array>
#include <cstring>
#include <memory>
#include <optional>
#include <span>

namespace workbench {

namespace {

constexpr qsizetype MostColors = 256;

/// Numbers colors in the order of their first use.
class ColorNumbers
{
public:
    /// The number of a color; nothing if there are too many.
    [[nodiscard]] std::optional<uchar> numberOf(QRgb color)
    {
        std::size_t place = placeOf(color);
        while (m_places[place] != 0) {
            const int number = m_places[place] - 1;
            if (m_colors.at(number) == color) {
                return static_cast<uchar>(number);
            }
            place = (place + 1) % Places;
        }
        if (m_colors.size() == MostColors) {
            return std::nullopt;
        }
        m_colors.append(color);
        m_places[place] = static_cast<quint16>(m_colors.size());
        return static_cast<uchar>(m_colors.size() - 1);
    }

    [[nodiscard]] const QList<QRgb>& colors() const { return m_colors; }

private:
    static constexpr std::size_t PlaceBits = 10;
    static constexpr std::size_t Places = 1 << PlaceBits;

    /// Where the search for a color begins. The factor spreads similar colors.
    [[nodiscard]] static std::size_t placeOf(QRgb color)
    {
        constexpr quint32 spread = 0x9E3779B1;
        return (color * spread) >> (32 - PlaceBits);
    }

    std::array<quint16, Places> m_places{}; // a color's number plus 1; 0 if free
    QList<QRgb> m_colors;
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

// Neighboring pixels are mostly equal: looks a number up only where the color changes.
bool numberRow(std::span<const QRgb> pixels, ColorNumbers& numbers, uchar* to)
{
    QRgb lastColor = ~pixels.front();
    uchar lastNumber = 0;
    for (const QRgb color : pixels) {
        if (color != lastColor) {
            const auto number = numbers.numberOf(color);
            if (!number) {
                return false;
            }
            lastColor = color;
            lastNumber = *number;
        }
        *to++ = lastNumber;
    }
    return true;
}

bool areEqual(std::span<const QRgb> a, std::span<const QRgb> b)
{
    return std::memcmp(a.data(), b.data(), a.size_bytes()) == 0;
}

// The picture with a color table; null if it has too many colors.
QImage withColorTable(const QImage& image)
{
    QImage result(image.size(), QImage::Format_Indexed8);
    ColorNumbers numbers;
    for (int y = 0; y < result.height(); ++y) {
        const std::span<const QRgb> row = pixelsOf(image, y);
        // Empty space and bar codes repeat the row above; comparing is faster than numbering.
        if (y > 0 && areEqual(row, pixelsOf(image, y - 1))) {
            std::memcpy(result.scanLine(y), result.constScanLine(y - 1), row.size());
        } else if (!numberRow(row, numbers, result.scanLine(y))) {
            return {};
        }
    }
    result.setColorTable(numbers.colors());
    copyTraits(image, result);
    return result;
}

// Without an early exit, because the compiler vectorizes such a loop.
bool isOpaque(std::span<const QRgb> pixels)
{
    QRgb common = 0xffffffff;
    for (const QRgb color : pixels) {
        common &= color;
    }
    return qAlpha(common) == 255;
}

bool isOpaque(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        if (!isOpaque(pixelsOf(image, y))) {
            return false;
        }
    }
    return true;
}

// Shares the pixels of an image in another format of the same depth.
QImage sharedAs(QImage::Format format, const QImage& image)
{
    const auto release = [](void* owner) { delete static_cast<QImage*>(owner); };
    auto owner = std::make_unique<QImage>(image);
    const uchar* pixels = owner->constBits();
    QImage result(pixels, image.width(), image.height(), image.bytesPerLine(), format, release,
                  owner.get());
    if (!result.isNull()) {
        (void)owner.release(); // owned by the result
    }
    copyTraits(image, result);
    return result;
}

// Colors in PNG files are not premultiplied. Opaque colors are the same both ways, and checking
// all pixels is faster than copying them.
QImage plainImage(const QImage& image)
{
    if (image.format() == QImage::Format_ARGB32_Premultiplied && isOpaque(image)) {
        return sharedAs(QImage::Format_RGB32, image);
    }
    const QImage plain = image.convertToFormat(QImage::Format_ARGB32);
    return isOpaque(plain) ? plain.convertToFormat(QImage::Format_RGB32) : plain;
}

} // namespace

QImage compactImage(const QImage& image)
{
    if (image.isNull()) {
        return {};
    }
    const QImage plain = plainImage(image);
    const QImage indexed = withColorTable(plain);
    return indexed.isNull() ? plain : indexed;
}

} // namespace workbench
