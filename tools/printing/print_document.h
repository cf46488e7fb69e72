#pragma once

#include "printing/sheet.h"

#include <functional>
#include <optional>

class QPainter;

namespace workbench {
class Canvas;
}

namespace printing {

/// Most copies of a label.
inline constexpr int MaximumCopies = 1000;
/// Most printed labels of one document, copies included.
inline constexpr qint64 MaximumLabels = 100'000;

/// How labels are put on paper.
struct PrintLayout
{
    std::optional<Sheet> sheet; ///< none: each label on paper of its own size
    int firstPosition = 0;      ///< the first free position of the first sheet
    int copies = 1;             ///< of each label, one after the other
    bool cropMarks = false;     ///< on sheets
};

/// Prepares the label of this number, counted from 0, and returns the canvas that shows it; null
/// to stop. Called before each copy, so that many copies can be stopped, too.
using ShowLabel = std::function<const workbench::Canvas*(qint64 number)>;

/// Labels to print, in their order.
struct LabelSeries
{
    qint64 count = 0;
    QSizeF size; ///< of the paper without a sheet, in points
    ShowLabel show;
};

/// The size of a canvas in millimeters.
[[nodiscard]] QSizeF labelSize(const workbench::Canvas& canvas);

/// The user-visible reason why a series cannot be printed like this: the first position or the
/// number of labels. Empty if it can.
[[nodiscard]] QString problemOf(const PrintLayout& layout, qint64 labels);

/// Number of pages.
[[nodiscard]] qint64 pagesFor(const PrintLayout& layout, qint64 labels);

/// Paints one page, in points from the upper left corner of the paper. Labels that are larger than
/// a cell of the sheet are cut. False if the series stopped.
[[nodiscard]] bool paintPrintPage(QPainter& painter, const PrintLayout& layout,
                                  const LabelSeries& series, qint64 page);

/// Writes the pages as a PDF document. The file is replaced completely or, on failure or if
/// stopped, not at all. Returns the error for the user; empty on success, and if stopped.
[[nodiscard]] QString writePrintDocument(const QString& fileName, const QString& title,
                                         const PrintLayout& layout, const LabelSeries& series);

} // namespace printing
