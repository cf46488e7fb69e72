#include "window/review/issues_panel.h"

#include "window/review/correction_commands.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <QVBoxLayout>

namespace window {

namespace {

constexpr int IssueRole = Qt::UserRole + 1;

/// Makes rows as high as their texts, wrapped in the columns.
class WrappedTexts final : public QStyledItemDelegate
{
public:
    explicit WrappedTexts(QTreeView& tree)
        : QStyledItemDelegate(&tree)
        , m_tree(tree)
    {}

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override
    {
        QStyleOptionViewItem wrapped = option;
        const bool isSpanned = m_tree.isFirstColumnSpanned(index.row(), index.parent());
        const bool isIndented = index.column() == IssuesPanel::Text && index.parent().isValid();
        const int indentation = isIndented ? m_tree.indentation() : 0;
        const int width =
            isSpanned ? m_tree.viewport()->width() : m_tree.columnWidth(index.column());
        // Texts are wrapped only in a valid rectangle.
        wrapped.rect = QRect(0, 0, width - indentation, 1);
        return QStyledItemDelegate::sizeHint(wrapped, index);
    }

private:
    QTreeView& m_tree;
};

QStandardItem* cell(const QString& text, int issue)
{
    auto* item = new QStandardItem(text);
    item->setEditable(false);
    item->setToolTip(text);
    item->setData(issue, IssueRole);
    return item;
}

QString countedText(const Issue& issue)
{
    return issue.count > 1 ? IssuesPanel::tr("%1 (%2 times)").arg(issue.text).arg(issue.count)
                           : issue.text;
}

QStandardItem* addGroup(QStandardItemModel& model, IssueGroup group)
{
    auto* item = new QStandardItem(titleOf(group));
    item->setFlags(Qt::ItemIsEnabled);
    QFont font = item->font();
    font.setBold(true);
    item->setFont(font);
    model.appendRow(item);
    return item;
}

} // namespace

IssuesPanel::IssuesPanel(QWidget* parent)
    : QWidget(parent)
    , m_model(new QStandardItemModel(0, ColumnCount, this))
    , m_tree(new QTreeView(this))
    , m_none(new QLabel(this))
    , m_stack(new QStackedWidget(this))
{
    m_tree->setModel(m_model);
    m_tree->setAccessibleName(tr("Issues of the label"));
    m_tree->setFrameShape(QFrame::NoFrame);
    m_tree->setWordWrap(true);
    m_tree->setItemDelegate(new WrappedTexts(*m_tree));
    m_tree->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_tree->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    // Queued: a layout may show the scroll bar, which resizes the columns.
    connect(m_tree->header(), &QHeaderView::sectionResized, m_tree, &QTreeView::doItemsLayout,
            Qt::QueuedConnection);
    m_tree->setAlternatingRowColors(true);
    m_tree->setRootIsDecorated(false);
    m_tree->setItemsExpandable(false);
    m_tree->setIndentation(m_tree->indentation() / 2);
    m_tree->setTabKeyNavigation(false);
    m_none->setAlignment(Qt::AlignCenter);
    m_none->setTextFormat(Qt::PlainText);
    m_none->setWordWrap(true);
    m_none->setForegroundRole(QPalette::PlaceholderText);
    m_stack->addWidget(m_none);
    m_stack->addWidget(m_tree);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_stack);
    makeButtons();
    setFocusProxy(m_tree);
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &IssuesPanel::requestIssueAt);
    connect(m_tree, &QTreeView::clicked, this, &IssuesPanel::requestIssueAt);
    connect(m_tree, &QTreeView::activated, this, &IssuesPanel::requestIssueAt);
    clear();
}

void IssuesPanel::makeButtons()
{
    auto* bar = new QHBoxLayout;
    bar->setContentsMargins(4, 2, 4, 4);
    for (const Correction correction :
         {Correction::Delete, Correction::ReplaceFont, Correction::SetColor, Correction::Rescale,
          Correction::Bind}) {
        auto* button = new QPushButton(titleOf(correction), this);
        button->hide();
        connect(button, &QPushButton::clicked, this,
                [this, correction] { requestCorrection(correction); });
        bar->addWidget(button);
        m_buttons[correction] = button;
    }
    bar->addStretch();
    static_cast<QVBoxLayout*>(layout())->addLayout(bar);
}

void IssuesPanel::setIssues(const QList<Issue>& issues)
{
    m_none->setText(tr("Nothing was lost or changed."));
    m_stack->setCurrentWidget(issues.isEmpty() ? static_cast<QWidget*>(m_none) : m_tree);
    // Equal issues, of another record, keep the selection.
    if (issues != m_issues) {
        m_issues = issues;
        fill();
    }
}

void IssuesPanel::clear(const QString& reason)
{
    setIssues({});
    m_none->setText(reason.isEmpty() ? tr("No label is open.") : reason);
}

void IssuesPanel::fill()
{
    m_model->clear();
    showButtons({});
    m_model->setHorizontalHeaderLabels({tr("Issue"), tr("Objects"), tr("What you can do")});
    QStandardItem* group = nullptr;
    for (int index = 0; index < m_issues.size(); ++index) {
        const Issue& issue = m_issues.at(index);
        if (index == 0 || issue.group != m_issues.at(index - 1).group) {
            group = addGroup(*m_model, issue.group);
            m_tree->setFirstColumnSpanned(group->row(), {}, true);
        }
        group->appendRow(
            {cell(countedText(issue), index), cell(issue.about, index), cell(issue.advice, index)});
        if (issue.about.isEmpty() && issue.advice.isEmpty()) {
            m_tree->setFirstColumnSpanned(group->rowCount() - 1, group->index(), true);
        }
    }
    m_tree->expandAll();
    m_tree->header()->setSectionResizeMode(QHeaderView::Stretch);
}

void IssuesPanel::focusIssues()
{
    m_tree->setFocus(Qt::ShortcutFocusReason);
    // The focus may have made the title of a group the current row.
    if (!m_tree->currentIndex().data(IssueRole).isValid() && !m_issues.isEmpty()) {
        m_tree->setCurrentIndex(m_model->index(0, Text, m_model->index(0, 0)));
    }
}

void IssuesPanel::requestIssueAt(const QModelIndex& index)
{
    showButtons(index);
    const QVariant issue = index.data(IssueRole);
    if (issue.isValid()) {
        Q_EMIT issueRequested(m_issues.at(issue.toInt()));
    }
}

void IssuesPanel::requestCorrection(Correction correction)
{
    const QVariant row = m_tree->currentIndex().data(IssueRole);
    if (row.isValid()) {
        // A copy: the correction changes the list.
        const Issue issue = m_issues.at(row.toInt());
        Q_EMIT correctionRequested(correction, issue);
    }
}

void IssuesPanel::showButtons(const QModelIndex& index)
{
    const QVariant issue = index.data(IssueRole);
    const QList<Correction> corrections =
        issue.isValid() ? correctionsFor(m_issues.at(issue.toInt())) : QList<Correction>();
    for (const auto& [correction, button] : m_buttons) {
        button->setVisible(corrections.contains(correction));
    }
}

} // namespace window
