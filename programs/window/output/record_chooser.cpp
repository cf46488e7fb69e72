#include "window/output/record_chooser.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace window {

namespace {

int boxNumber(qint64 number)
{
    return static_cast<int>(std::min<qint64>(number, std::numeric_limits<int>::max()));
}

} // namespace

RecordChooser::RecordChooser(qint64 recordCount, qint64 shownRecord, QWidget* parent)
    : QWidget(parent)
    , m_shownRecord(shownRecord)
    , m_shown(new QRadioButton(tr("The one &shown (%1)").arg(QLocale().toString(shownRecord + 1)),
                               this))
    , m_run(new QRadioButton(tr("F&rom"), this))
    , m_first(new QSpinBox(this))
    , m_last(new QSpinBox(this))
{
    m_shown->setChecked(true);
    m_run->setEnabled(recordCount > 1);
    m_run->setAccessibleName(tr("A run of records"));
    m_first->setAccessibleName(tr("First record"));
    m_last->setAccessibleName(tr("Last record"));
    buildRow(boxNumber(recordCount));
    connect(m_run, &QRadioButton::toggled, this, [this](bool isRun) {
        m_first->setEnabled(isRun);
        m_last->setEnabled(isRun);
        Q_EMIT rangeChanged();
    });
    connect(m_first, &QSpinBox::valueChanged, this, [this](int first) {
        // A range has at least one record and at most MaximumRecords.
        m_last->setMinimum(first);
        const qint64 most = first + MaximumRecords - 1;
        m_last->setMaximum(boxNumber(std::min<qint64>(most, m_first->maximum())));
        Q_EMIT rangeChanged();
    });
    connect(m_last, &QSpinBox::valueChanged, this, &RecordChooser::rangeChanged);
}

void RecordChooser::buildRow(int recordCount)
{
    m_first->setRange(1, recordCount);
    m_last->setRange(1, static_cast<int>(std::min<qint64>(recordCount, MaximumRecords)));
    m_last->setValue(m_last->maximum());
    m_first->setEnabled(false);
    m_last->setEnabled(false);
    auto* run = new QHBoxLayout;
    run->addWidget(m_run);
    run->addWidget(m_first);
    run->addWidget(new QLabel(tr("to"), this));
    run->addWidget(m_last);
    run->addWidget(new QLabel(tr("of %1").arg(QLocale().toString(recordCount)), this));
    run->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_shown);
    layout->addLayout(run);
}

RecordRange RecordChooser::range() const
{
    if (!m_run->isChecked()) {
        return {m_shownRecord, 1};
    }
    const qint64 first = m_first->value() - 1;
    const qint64 count = m_last->value() - first;
    return {first, std::clamp<qint64>(count, 1, MaximumRecords)};
}

bool RecordChooser::isRun() const
{
    return m_run->isChecked();
}

void RecordChooser::chooseRun(int first, int last)
{
    m_run->setChecked(true);
    m_first->setValue(first);
    m_last->setValue(last);
}

} // namespace window
