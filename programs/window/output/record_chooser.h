#pragma once

#include "window/output/output_job.h"

#include <QWidget>

class QRadioButton;
class QSpinBox;

namespace window {

/// Asks which records are put out: the one that is shown, or a run of them.
class RecordChooser final : public QWidget
{
    Q_OBJECT

public:
    /// @param recordCount how many records there are
    /// @param shownRecord the record that is shown, counted from 0
    RecordChooser(qint64 recordCount, qint64 shownRecord, QWidget* parent = nullptr);

    /// Never more than MaximumRecords.
    [[nodiscard]] RecordRange range() const;
    /// Chooses a run, both ends counted from 1 and included.
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
