#pragma once

#include <QLineF>
#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

/// Labels on paper. All lengths of sheets are in millimeters, from the upper left corner of the
/// paper; positions are counted from 0, from left to right and then down.
namespace printing {

/// Most rows or columns of a sheet.
inline constexpr int MaximumGrid = 100;
/// Longest side of a paper.
inline constexpr double MaximumPaperSide = 2000.0;

/// A paper with labels in rows and columns.
struct Sheet
{
    QStringList names; ///< of the same layout; the first is shown
    QString paper;     ///< "A4"; empty if the paper has no name
    QSizeF paperSize;
    int columns = 1;
    int rows = 1;
    QSizeF label;  ///< of one label
    QPointF start; ///< upper left corner of the first label
    QSizeF pitch;  ///< from one label to the next: its size and the gap

    [[nodiscard]] QString name() const { return names.value(0); }
    [[nodiscard]] int positions() const { return columns * rows; }
    bool operator==(const Sheet&) const = default;
};

/// The user-visible reason why a sheet cannot be used; empty if it can.
[[nodiscard]] QString problemOf(const Sheet& sheet);

/// The size of a paper by its name, without regard to case; empty for an unknown name.
[[nodiscard]] QSizeF paperSizeOf(const QString& name);
[[nodiscard]] QStringList paperNames();

/// Plain paper with as many labels of this size as fit, turned by 90° if they do not fit upright.
/// They are spaced for cutting and centered on the paper. If not even one label fits, the paper is
/// one cell, which is too small for the label.
[[nodiscard]] Sheet plainSheet(const QString& paper, const QSizeF& label);

/// The place of a label on the sheet.
[[nodiscard]] QRectF cellAt(const Sheet& sheet, int position);

/// Whether a label fits in the cells of a sheet, perhaps turned by 90°. It is never scaled, because
/// a barcode must keep its size.
enum class Fit { Upright, Rotated, TooLarge };
[[nodiscard]] Fit fitOf(const Sheet& sheet, const QSizeF& label);
/// User-visible: the label's size and the sheet's.
[[nodiscard]] QString misfitMessage(const Sheet& sheet, const QSizeF& label);

/// Lines in the margins of the paper that show where to cut.
[[nodiscard]] QList<QLineF> cropMarks(const Sheet& sheet);

/// Number of sheets for so many labels, if the first label is printed at a position of the first
/// sheet.
[[nodiscard]] qint64 sheetsFor(const Sheet& sheet, int firstPosition, qint64 labels);

} // namespace printing
