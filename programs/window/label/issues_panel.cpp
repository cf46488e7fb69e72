#include "window/label/issues_panel.h"

#include "window/properties/tables.h"

#include <QHeaderView>
#include <QLabel>
#include <QStackedLayout>
#include <QTableView>

namespace window {

IssuesPanel::IssuesPanel(QWidget* parent)
    : QWidget(parent)
    , m_model(new IssueListModel(this))
    , m_table(makeTable(*m_model, tr("Issues of the label"), this))
    , m_none(new QLabel(tr("There is nothing to report."), this))
    , m_stack(new QStackedLayout(this))
{
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setWordWrap(true);
    m_table->setColumnWidth(IssueListModel::About,
                            fontMetrics().horizontalAdvance(QLatin1Char('x')) * 20);
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_none->setAlignment(Qt::AlignCenter);
    m_none->setForegroundRole(QPalette::PlaceholderText);
    m_stack->addWidget(m_none);
    m_stack->addWidget(m_table);
    setFocusProxy(m_table);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &IssuesPanel::wantItemOf);
    connect(m_table, &QTableView::clicked, this, &IssuesPanel::wantItemOf);
    connect(m_table, &QTableView::activated, this, &IssuesPanel::wantItemOf);
}

void IssuesPanel::setIssues(const QList<Issue>& issues)
{
    m_model->setIssues(issues);
    m_stack->setCurrentWidget(issues.isEmpty() ? static_cast<QWidget*>(m_none) : m_table);
}

void IssuesPanel::wantItemOf(const QModelIndex& index)
{
    const int item = m_model->itemOf(index.row());
    if (item >= 0) {
        Q_EMIT itemWanted(item);
    }
}

} // namespace window
