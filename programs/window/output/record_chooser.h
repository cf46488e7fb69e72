#pragma once

#include "window/output/output_job.h"

#include <QWidget>

class QRadioButton;
class QSpinBox;

namespace window {

/// Asks which records to write: the shown one, or a range.
class RecordChooser final : public QWidget
{
    Q_OBJECT

public:
    /// @param recordCount number of records
    /// @param shownRecord the shown record, counted from 0
    RecordChooser(qint64 recordCount, qint64 shownRecord, QWidget* parent = nullptr);

    /// Never more than MaximumRecords.
    [[nodiscard]] RecordRange range() const;
    [[nodiscard]] bool isRun() const;
    /// Selects a range; both ends are inclusive and counted from 1.
    void chooseRun(int first, int last);

Q_SIGNALS:
    void rangeChanged();

private:
    void buildRow(int recordCount);

    qint64 m_shownRecord;
    QRadioButton* m_shown;
    QRadioButton* m_run;
    QSpinBox* m_first;
    QSpinBox* m_last;
};

} // namespace window
