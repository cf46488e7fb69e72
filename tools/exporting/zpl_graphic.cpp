#include "exporting/zpl_graphic.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace exporting {
namespace {

/// Tones below are dark.
constexpr int Middle = 128;
/// Least difference of neighbors that is an edge and not a gradient.
constexpr int EdgeContrast = 96;
/// Most bytes of one graphic field. Older printers accept no more.
constexpr int FieldBytes = 99'999;

/// The order in which the dots of a 4 by 4 cell are printed as a tone gets darker.
constexpr std::array<std::array<int, 4>, 4> Pattern{
    {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}}};

/// Colors on white paper, as tones from 0 (black) to 255.
QImage tonesOf(const QImage& picture)
{
    QImage paper(picture.size(), QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    painter.drawImage(QRect(QPoint(), picture.size()), picture);
    painter.end();
    return paper.convertToFormat(QImage::Format_Grayscale8);
}

/// Makes the tones of an area black and white, whatever its two colors: a scanner cannot read bars
/// that are patterns of dots.
void sharpen(QImage& tones, const QRect& area)
{
    int darkest = 255;
    int lightest = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const uchar* line = tones.constScanLine(y);
        for (int x = area.left(); x <= area.right(); ++x) {
            darkest = std::min<int>(darkest, line[x]);
            lightest = std::max<int>(lightest, line[x]);
        }
    }
    // Without a difference that a scanner could see, it stays as it is.
    constexpr int leastDifference = 32;
    if (lightest - darkest < leastDifference) {
        return;
    }
    const int middle = (darkest + lightest) / 2;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        uchar* line = tones.scanLine(y);
        for (int x = area.left(); x <= area.right(); ++x) {
            line[x] = line[x] <= middle ? 0 : 255;
        }
    }
}

bool isPrinted(const QImage& tones, int x, int y)
{
    int darkest = 255;
    int lightest = 0;
    for (int row = std::max(0, y - 1); row <= std::min(tones.height() - 1, y + 1); ++row) {
        const uchar* line = tones.constScanLine(row);
        for (int column = std::max(0, x - 1); column <= std::min(tones.width() - 1, x + 1);
             ++column) {
            darkest = std::min<int>(darkest, line[column]);
            lightest = std::max<int>(lightest, line[column]);
        }
    }
    const int tone = tones.constScanLine(y)[x];
    if (darkest < Middle && lightest >= Middle && lightest - darkest >= EdgeContrast) {
        return tone < Middle;
    }
    const int rank =
        Pattern.at(static_cast<std::size_t>(y % 4)).at(static_cast<std::size_t>(x % 4));
    return tone < 16 * rank + 8;
}

/// The count before a hexadecimal digit: "G" to "Y" are 1 to 19, "g" to "z" 20 to 400.
void appendRun(QByteArray& text, char digit, qsizetype length)
{
    constexpr qsizetype most = 400;
    for (; length > most; length -= most) {
        text += 'z';
        text += digit;
    }
    if (length >= 20) {
        text += static_cast<char>('g' + length / 20 - 1);
    }
    // A digit without a count is one digit.
    if (length % 20 > 0 && length > 1) {
        text += static_cast<char>('G' + length % 20 - 1);
    }
    text += digit;
}

QByteArray compressedRow(const QByteArray& digits)
{
    QByteArray text;
    for (qsizetype start = 0; start < digits.size();) {
        const char digit = digits.at(start);
        qsizetype end = start;
        while (end < digits.size() && digits.at(end) == digit) {
            ++end;
        }
        if (end == digits.size() && digit == '0') {
            // Fills the row. "!" would fill it with ones, but not all programs agree on how many.
            text += ',';
        } else {
            appendRun(text, digit, end - start);
        }
        start = end;
    }
    return text;
}

QByteArray rowDigits(const QImage& dots, int row)
{
    const int bytes = (dots.width() + 7) / 8;
    QByteArray line(reinterpret_cast<const char*>(dots.constScanLine(row)), bytes);
    if (dots.width() % 8 != 0) {
        const int unused = 8 - dots.width() % 8;
        line[bytes - 1] = static_cast<char>(line.at(bytes - 1) & (0xFF << unused));
    }
    return line.toHex().toUpper();
}

QByteArray graphicField(const QImage& dots, int firstRow, int rows)
{
    QByteArray data;
    QByteArray last;
    for (int row = firstRow; row < firstRow + rows; ++row) {
        const QByteArray digits = rowDigits(dots, row);
        data += digits == last ? QByteArray(":") : compressedRow(digits);
        last = digits;
    }
    const int bytesInRow = (dots.width() + 7) / 8;
    const QByteArray size = QByteArray::number(bytesInRow * rows);
    return "^FO0," + QByteArray::number(firstRow) + "^GFA," + size + ',' + size + ',' +
           QByteArray::number(bytesInRow) + ',' + data + "^FS\n";
}

bool isBlank(const QImage& dots, int row)
{
    const QByteArray digits = rowDigits(dots, row);
    return std::all_of(digits.begin(), digits.end(), [](char digit) { return digit == '0'; });
}

} // namespace

QImage printerDots(const QImage& picture, const QList<QRect>& barcodes)
{
    QImage tones = tonesOf(picture);
    for (const QRect& area : barcodes) {
        sharpen(tones, area & tones.rect());
    }
    QImage dots(tones.size(), QImage::Format_Mono);
    dots.setColorTable({qRgb(255, 255, 255), qRgb(0, 0, 0)});
    dots.fill(0);
    for (int y = 0; y < tones.height(); ++y) {
        uchar* line = dots.scanLine(y);
        for (int x = 0; x < tones.width(); ++x) {
            if (isPrinted(tones, x, y)) {
                line[x / 8] = static_cast<uchar>(line[x / 8] | (0x80 >> (x % 8)));
            }
        }
    }
    return dots;
}

QByteArray graphicFields(const QImage& dots)
{
    const int rowsInField = std::max(1, FieldBytes / std::max(1, (dots.width() + 7) / 8));
    QByteArray fields;
    int row = 0;
    while (row < dots.height()) {
        if (isBlank(dots, row)) {
            ++row;
            continue;
        }
        int end = std::min(dots.height(), row + rowsInField);
        const int next = end;
        while (isBlank(dots, end - 1)) {
            --end;
        }
        fields += graphicField(dots, row, end - row);
        row = next;
    }
    return fields;
}

} // namespace exporting
