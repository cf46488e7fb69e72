#include "window/review/label_list_panel.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScopedValueRollback>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>
#include <initializer_list>

namespace window {

namespace {

constexpr int AllStates = -1;

/// Filters by name and state.
class ShownLabels final : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setState(int state)
    {
        m_state = state;
        invalidateFilter();
    }

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        const QModelIndex index = sourceModel()->index(row, 0, parent);
        return (m_state == AllStates || index.data(LabelListModel::StateRole).toInt() == m_state) &&
               QSortFilterProxyModel::filterAcceptsRow(row, parent);
    }

    // Labels of the same state by name.
    [[nodiscard]] bool lessThan(const QModelIndex& left, const QModelIndex& right) const override
    {
        const int one = left.data(LabelListModel::StateRole).toInt();
        const int other = right.data(LabelListModel::StateRole).toInt();
        if (sortRole() == LabelListModel::StateRole && one != other) {
            return one > other; // the worst first
        }
        return left.row() < right.row();
    }

private:
    int m_state = AllStates;
};

/// Makes the rows as wide as the list, so that long names are shortened.
class NarrowRows final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override
    {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return {std::min(size.width(), LabelListModel::ThumbnailSize.width()), size.height()};
    }
};

} // namespace

LabelListPanel::LabelListPanel(QWidget* parent)
    : QWidget(parent)
    , m_shown(new ShownLabels(this))
    , m_nameFilter(new QLineEdit(this))
    , m_stateFilter(new QComboBox(this))
    , m_order(new QComboBox(this))
    , m_list(new QListView(this))
    , m_count(new QLabel(this))
{
    m_nameFilter->setPlaceholderText(tr("Filter by name"));
    m_nameFilter->setAccessibleName(tr("Filter by name"));
    m_nameFilter->setClearButtonEnabled(true);
    m_stateFilter->setAccessibleName(tr("Filter by state"));
    m_stateFilter->addItem(tr("All states"), AllStates);
    for (const LabelState state : {LabelState::Complete, LabelState::Changed, LabelState::Lossy,
                                   LabelState::Failed, LabelState::Edited}) {
        m_stateFilter->addItem(stateName(state), static_cast<int>(state));
    }
    m_order->setAccessibleName(tr("Order"));
    m_order->addItem(tr("By name"), LabelListModel::NameRole);
    m_order->addItem(tr("By state"), LabelListModel::StateRole);
    m_shown->setSourceModel(&m_review.model());
    m_shown->setFilterRole(LabelListModel::NameRole);
    m_shown->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_shown->setSortRole(LabelListModel::NameRole);
    m_shown->sort(0);
    // Before the view's own connections: a filter that hides the open label opens no other one.
    connect(m_shown, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this] { m_isFollowing = true; });
    connect(m_shown, &QAbstractItemModel::rowsRemoved, this, [this] { m_isFollowing = false; });
    m_list->setModel(m_shown);
    m_list->setAccessibleName(tr("Labels of the folder"));
    m_list->setIconSize(LabelListModel::ThumbnailSize);
    m_list->setUniformItemSizes(true);
    m_list->setItemDelegate(new NarrowRows(m_list));
    // Names of labels often differ only at their ends.
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setAlternatingRowColors(true);
    m_count->setForegroundRole(QPalette::PlaceholderText);
    auto* choices = new QHBoxLayout;
    choices->addWidget(m_stateFilter);
    choices->addWidget(m_order);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(m_nameFilter);
    layout->addLayout(choices);
    layout->addWidget(m_list);
    layout->addWidget(m_count);
    setFocusProxy(m_list);
    connect(m_nameFilter, &QLineEdit::textChanged, m_shown,
            &QSortFilterProxyModel::setFilterFixedString);
    connect(m_stateFilter, &QComboBox::currentIndexChanged, this, [this] {
        static_cast<ShownLabels*>(m_shown)->setState(m_stateFilter->currentData().toInt());
    });
    connect(m_order, &QComboBox::currentIndexChanged, this,
            [this] { m_shown->setSortRole(m_order->currentData().toInt()); });
    connect(m_list->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &LabelListPanel::requestCurrent);
    for (const auto change :
         {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
        connect(m_shown, change, this, &LabelListPanel::showCount);
    }
    connect(m_shown, &QAbstractItemModel::modelReset, this, &LabelListPanel::showCount);
    connect(m_shown, &QAbstractItemModel::layoutChanged, this, &LabelListPanel::stepsChanged);
    showCount();
}

bool LabelListPanel::openFolder(const QString& folder)
{
    m_nameFilter->clear();
    m_stateFilter->setCurrentIndex(0);
    const bool isComplete = m_review.openFolder(folder);
    step(1);
    return isComplete;
}

void LabelListPanel::setOpenFile(const QString& file)
{
    const int row = m_review.model().rowOf(file);
    const QScopedValueRollback following(m_isFollowing, true);
    m_list->setCurrentIndex(m_shown->mapFromSource(m_review.model().index(row)));
    Q_EMIT stepsChanged();
}

void LabelListPanel::step(int rows)
{
    if (canStep(rows)) {
        m_list->setCurrentIndex(m_shown->index(m_list->currentIndex().row() + rows, 0));
    }
}

bool LabelListPanel::canStep(int rows) const
{
    const int row = m_list->currentIndex().row() + rows; // that of no index is -1
    return row >= 0 && row < m_shown->rowCount();
}

void LabelListPanel::requestCurrent()
{
    Q_EMIT stepsChanged();
    if (!m_isFollowing && m_list->currentIndex().isValid()) {
        Q_EMIT fileRequested(m_list->currentIndex().data(LabelListModel::FileRole).toString());
    }
}

void LabelListPanel::showCount()
{
    m_count->setText(
        tr("%1 of %2 labels").arg(m_shown->rowCount()).arg(m_review.model().rowCount()));
    Q_EMIT stepsChanged();
}

} // namespace window
