// The records of the label and its data sources in the main window.

#include "window/items/item_panel.h"
#include "window/main_window.h"
#include "window/sources/source_commands.h"
#include "window/sources/source_panel.h"
#include "workbench/datasources/sequence_source.h"
#include "workbench/datasources/system_source.h"
#include "workbench/datasources/text_list_source.h"

#include <QStatusBar>

#include <algorithm>

namespace window {

namespace {

// The kind of data source that a command adds.
QString kindOf(ActionId id)
{
    using namespace workbench::datasources;
    const QStringView kind = id == ActionId::NewCounter ? SequenceSource::Kind
                             : id == ActionId::NewDate  ? SystemSource::Kind
                                                        : TextListSource::Kind;
    return kind.toString();
}

} // namespace

void MainWindow::connectRecordActions()
{
    connect(&action(ActionId::FirstRecord), &QAction::triggered, this,
            [this] { showRecordNumber(0); });
    connect(&action(ActionId::PreviousRecord), &QAction::triggered, this,
            [this] { showRecordNumber(m_record - 1); });
    connect(&action(ActionId::NextRecord), &QAction::triggered, this,
            [this] { showRecordNumber(m_record + 1); });
    connect(&action(ActionId::LastRecord), &QAction::triggered, this,
            [this] { showRecordNumber(recordCount() - 1); });
    const auto refresh = [this] { showRecordNumber(m_record); };
    connect(&action(ActionId::ConnectCsv), &QAction::triggered, this,
            [this, refresh] { pushSourceChange(connectCsv(*m_session->label(), refresh, this)); });
    connect(&action(ActionId::EditSource), &QAction::triggered, this, [this, refresh] {
        pushSourceChange(
            editSource(*m_session->label(), m_panels->sources().currentSource(), refresh, this));
    });
    connect(&action(ActionId::ShowSource), &QAction::triggered, this, [this, refresh] {
        pushSourceChange(showSource(*m_session->label(), m_panels->sources().currentSource(),
                                    m_panels->items().selectedItems(), refresh, this));
    });
    for (const ActionId id : {ActionId::NewCounter, ActionId::NewDate, ActionId::NewList}) {
        connect(&action(id), &QAction::triggered, this, [this, id, refresh] {
            const auto items = m_panels->items().selectedItems();
            pushSourceChange(addSource(*m_session->label(), kindOf(id), items, refresh, this));
            if (items.isEmpty()) {
                statusBar()->showMessage(
                    tr("To show the data source, select texts or barcodes, then “Show in Selected "
                       "Items”."),
                    10'000);
            }
        });
    }
}

qint64 MainWindow::recordCount() const
{
    return m_session->label() != nullptr ? m_session->label()->sources->recordCount() : 1;
}

void MainWindow::showRecordNumber(qint64 record)
{
    OpenLabel* label = m_session->label();
    if (label == nullptr) {
        return;
    }
    m_record = std::clamp<qint64>(record, 0, recordCount() - 1);
    showRecord(*label, m_record);
    m_panels->sources().show(label->sources.get(), m_record);
    m_status->setRecord(m_record, recordCount());
    refreshItems();
    refreshActions();
}

// Null if the user canceled.
void MainWindow::pushSourceChange(std::unique_ptr<QUndoCommand> change)
{
    if (change != nullptr) {
        m_session->undoStack().push(change.release());
    }
}

} // namespace window
