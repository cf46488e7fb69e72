#include "window/sources/source_panel.h"

#include "window/actions/actions.h"
#include "window/properties/tables.h"
#include "window/sources/source_table_model.h"
#include "workbench/datasources/datasource_controller.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QSpinBox>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

// A spin box holds an int; larger numbers are limited.
int boxNumber(qint64 number)
{
    return static_cast<int>(std::min<qint64>(number, std::numeric_limits<int>::max()));
}

QToolButton* makeButton(QAction& action, QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setDefaultAction(&action);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(action.statusTip());
    return button;
}

} // namespace

SourcePanel::SourcePanel(const Actions& actions, QWidget* parent)
    : QWidget(parent)
    , m_model(new SourceTableModel(this))
    , m_table(makeTable(*m_model, tr("Data sources of the label"), this))
    , m_record(new QSpinBox(this))
    , m_count(new QLabel(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeRecordBar(actions));
    layout->addWidget(m_table);
    setFocusProxy(m_table);
    // The settings and the text of the record need the room.
    QHeaderView& header = *m_table->horizontalHeader();
    header.setStretchLastSection(false);
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(SourceTableModel::Settings, QHeaderView::Stretch);
    header.setSectionResizeMode(SourceTableModel::Now, QHeaderView::Stretch);
    connect(m_record, &QSpinBox::valueChanged, this,
            [this](int number) { Q_EMIT recordRequested(number - 1); });
    QAction* edit = &actions.at(ActionId::EditSource);
    connect(m_table, &QTableView::doubleClicked, edit, &QAction::trigger);
    show(nullptr, 0);
}

QWidget* SourcePanel::makeRecordBar(const Actions& actions)
{
    auto* bar = new QWidget(this);
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(6, 4, 6, 4);
    auto* caption = new QLabel(tr("Record &number"), bar);
    caption->setBuddy(m_record);
    m_record->setAccessibleName(tr("Number of the record that is shown"));
    m_record->setMinimum(1);
    m_record->installEventFilter(this);
    const QList<QWidget*> parts = m_record->findChildren<QWidget*>();
    for (QWidget* part : parts) {
        part->installEventFilter(this);
    }
    m_record->setKeyboardTracking(false);
    layout->addWidget(caption);
    layout->addWidget(makeButton(actions.at(ActionId::FirstRecord), bar));
    layout->addWidget(makeButton(actions.at(ActionId::PreviousRecord), bar));
    layout->addWidget(m_record);
    layout->addWidget(m_count);
    layout->addWidget(makeButton(actions.at(ActionId::NextRecord), bar));
    layout->addWidget(makeButton(actions.at(ActionId::LastRecord), bar));
    layout->addStretch();
    // A tool bar has a menu for the buttons for which a narrow window has no room.
    auto* commands = new QToolBar(tr("Data source"), bar);
    commands->setAccessibleName(tr("Data source"));
    commands->setToolButtonStyle(Qt::ToolButtonTextOnly);
    for (const ActionId id : {ActionId::ConnectCsv, ActionId::EditSource}) {
        QAction& action = actions.at(id);
        commands->addAction(&action);
        QWidget* button = commands->widgetForAction(&action);
        button->setFocusPolicy(Qt::TabFocus);
        button->setAccessibleName(action.statusTip());
    }
    layout->addWidget(commands);
    return bar;
}

int SourcePanel::currentSource() const
{
    const int row = m_table->currentIndex().row();
    return m_model->idOf(std::max(row, 0));
}

// A number has no end of line to go to: Ctrl+E is the window's.
bool SourcePanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_E && key->modifiers() == Qt::ControlModifier) {
            event->ignore();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void SourcePanel::show(const workbench::datasources::DatasourceController* sources, qint64 record)
{
    m_model->show(sources, record);
    const qint64 count = sources != nullptr ? sources->recordCount() : 1;
    const QSignalBlocker silence(m_record);
    m_record->setMaximum(boxNumber(count));
    m_record->setValue(boxNumber(record + 1));
    m_record->setEnabled(count > 1);
    m_count->setText(tr("of %1").arg(QLocale().toString(count)));
}

} // namespace window
