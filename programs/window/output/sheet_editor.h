#pragma once

#include "printing/sheet.h"

#include <QWidget>

#include <optional>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QSpinBox;

namespace window {

/// Asks for the paper: of the label's size, or a sheet with its measures.
class SheetEditor final : public QWidget
{
    Q_OBJECT

public:
    /// @param label size in millimeters of the label for which sheets are shown
    explicit SheetEditor(const QSizeF& label, QWidget* parent = nullptr);

    /// The sheet for labels of a size; none for paper of their own size.
    [[nodiscard]] std::optional<printing::Sheet> sheetFor(const QSizeF& label) const;
    /// User-visible reason why the measures are invalid; empty if they are valid.
    [[nodiscard]] QString problem() const;
    /// Counted from 0.
    [[nodiscard]] int firstPosition() const;
    void setFirstPosition(int position);
    [[nodiscard]] bool cropMarks() const;
    /// Selects paper by its name; for tests and callers that fill in the fields.
    void selectSheet(const QString& name);
    /// Remembers a sheet with measures of the user's own for the next dialog.
    void store() const;

Q_SIGNALS:
    void changed();

private:
    void fillPapers();
    void addMeasures(QFormLayout& form);
    void selectPaper();
    void editMeasures();
    void showMeasures(const printing::Sheet& sheet);
    [[nodiscard]] printing::Sheet editedSheet() const;
    [[nodiscard]] QDoubleSpinBox* addLength(const QString& name);
    [[nodiscard]] QSpinBox* addCount(const QString& name, int most);

    QSizeF m_label;
    printing::Sheet m_own; ///< with the user's measures
    QComboBox* m_paper;
    QSpinBox* m_columns;
    QSpinBox* m_rows;
    QDoubleSpinBox* m_width;
    QDoubleSpinBox* m_height;
    QDoubleSpinBox* m_left;
    QDoubleSpinBox* m_top;
    QDoubleSpinBox* m_columnGap;
    QDoubleSpinBox* m_rowGap;
    QSpinBox* m_first;
    QCheckBox* m_cropMarks;
    QWidget* m_measures;
};

} // namespace window
