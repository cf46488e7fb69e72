#include "window/edit_actions.h"

#include "window/canvas/canvas_view.h"
#include "window/edit/clipboard.h"
#include "window/edit/geometry.h"

#include <QClipboard>
#include <QGraphicsItem>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>

#include <algorithm>
#include <utility>

namespace window {

namespace {

// Copies are offset from their originals by two millimeters to the right and down.
constexpr QPointF CopyOffset(2.0 * 72.0 / 25.4, 2.0 * 72.0 / 25.4);

constexpr std::pair<ActionId, Order> Orders[] = {
    {ActionId::ToFront, Order::Front},
    {ActionId::Raise, Order::Forward},
    {ActionId::Lower, Order::Backward},
    {ActionId::ToBack, Order::Back},
};

constexpr std::pair<ActionId, Edge> Edges[] = {
    {ActionId::AlignLeft, Edge::Left},
    {ActionId::AlignCenter, Edge::HorizontalCenter},
    {ActionId::AlignRight, Edge::Right},
    {ActionId::AlignTop, Edge::Top},
    {ActionId::AlignMiddle, Edge::VerticalCenter},
    {ActionId::AlignBottom, Edge::Bottom},
};

QString stepName(const QAction& action)
{
    return action.text().remove(QLatin1Char('&'));
}

} // namespace

EditActions::EditActions(const Actions& actions, LabelSession& session, CanvasView& view,
                         QObject* parent)
    : QObject(parent)
    , m_actions(actions)
    , m_session(session)
    , m_view(view)
{
    connect(&actions.at(ActionId::Cut), &QAction::triggered, this, &EditActions::cut);
    connect(&actions.at(ActionId::Copy), &QAction::triggered, this, &EditActions::copy);
    connect(&actions.at(ActionId::Paste), &QAction::triggered, this, &EditActions::paste);
    connect(&actions.at(ActionId::Duplicate), &QAction::triggered, this, &EditActions::duplicate);
    connect(&actions.at(ActionId::Delete), &QAction::triggered, this,
            [this] { remove(tr("Delete")); });
    connect(&actions.at(ActionId::EditText), &QAction::triggered, this, &EditActions::editText);
    connectOrder();
    connectAlignment();
}

void EditActions::connectOrder()
{
    for (const auto& [id, order] : Orders) {
        QAction* action = &m_actions.at(id);
        connect(action, &QAction::triggered, this, [this, action, order = order] {
            push(stepName(*action), restack(canvas(), selectedItems(), order));
        });
    }
}

void EditActions::connectAlignment()
{
    for (const auto& [id, edge] : Edges) {
        connect(&m_actions.at(id), &QAction::triggered, this,
                [this, edge = edge] { alignItems(edge); });
    }
    for (const auto& [id, direction] : {std::pair(ActionId::DistributeHorizontally, Qt::Horizontal),
                                        std::pair(ActionId::DistributeVertically, Qt::Vertical)}) {
        connect(&m_actions.at(id), &QAction::triggered, this, [this, direction = direction] {
            push(tr("Distribute"), distribute(selectedItems(), direction));
        });
    }
}

workbench::Canvas& EditActions::canvas() const
{
    return *m_session.label()->canvas;
}

QList<workbench::CanvasItem*> EditActions::selectedItems() const
{
    QList<workbench::CanvasItem*> items;
    for (workbench::CanvasItem* item : canvas().items()) {
        if (item->graphicsItem()->isSelected()) {
            items.append(item);
        }
    }
    return items;
}

void EditActions::refresh()
{
    const QGraphicsScene* scene = m_view.scene();
    const qsizetype count = scene != nullptr ? scene->selectedItems().size() : 0;
    for (const ActionId id :
         {ActionId::Cut, ActionId::Copy, ActionId::Duplicate, ActionId::Delete, ActionId::ToFront,
          ActionId::Raise, ActionId::Lower, ActionId::ToBack}) {
        m_actions.at(id).setEnabled(count > 0);
    }
    for (const auto& [id, edge] : Edges) {
        m_actions.at(id).setEnabled(count > 0);
    }
    m_actions.at(ActionId::EditText).setEnabled(count == 1);
    m_actions.at(ActionId::DistributeHorizontally).setEnabled(count > 2);
    m_actions.at(ActionId::DistributeVertically).setEnabled(count > 2);
}

void EditActions::fillMenu(QMenu& menu) const
{
    const QList<QList<ActionId>> groups{
        {ActionId::EditText, ActionId::GoProperties},
        {ActionId::Cut, ActionId::Copy, ActionId::Paste, ActionId::Duplicate, ActionId::Delete},
        {ActionId::ToFront, ActionId::Raise, ActionId::Lower, ActionId::ToBack},
    };
    for (const QList<ActionId>& group : groups) {
        if (!menu.isEmpty()) {
            menu.addSeparator();
        }
        for (const ActionId id : group) {
            menu.addAction(&m_actions.at(id));
        }
    }
}

void EditActions::copy()
{
    // The clipboard owns the data.
    QGuiApplication::clipboard()->setMimeData(
        copyItems(selectedItems(), *m_session.label()->sources).release());
}

void EditActions::cut()
{
    copy();
    remove(tr("Cut"));
}

void EditActions::paste()
{
    const QList<workbench::ItemValues> values =
        pastedItems(QGuiApplication::clipboard()->mimeData(), *m_session.label()->sources);
    if (values.isEmpty()) {
        Q_EMIT hintShown(tr("The clipboard contains no items of a label."));
        return;
    }
    add(tr("Paste"), values);
}

void EditActions::duplicate()
{
    QList<workbench::ItemValues> values;
    const QList<workbench::CanvasItem*> items = selectedItems();
    for (const workbench::CanvasItem* item : items) {
        values.append(item->values());
    }
    add(tr("Duplicate"), values);
}

void EditActions::add(const QString& step, QList<workbench::ItemValues> values)
{
    double top = 0.0;
    for (const workbench::CanvasItem* item : canvas().items()) {
        top = std::max(top, item->graphicsItem()->zValue() + 1.0);
    }
    // Above all other items, in their own order.
    std::stable_sort(values.begin(), values.end(),
                     [](const auto& a, const auto& b) { return a.placement.z < b.placement.z; });
    for (workbench::ItemValues& each : values) {
        moveBy(each, CopyOffset);
        each.placement.z = top;
        top += 1.0;
    }
    m_session.undoStack().push(new AddItems(step, canvas(), values));
}

void EditActions::remove(const QString& step)
{
    QList<workbench::CanvasItem*> items = selectedItems();
    const qsizetype removed = items.removeIf(
        [](const workbench::CanvasItem* item) { return item->values().placement.readOnly; });
    if (removed > 0) {
        Q_EMIT hintShown(tr("Read-only items were not deleted."));
    }
    if (!items.isEmpty()) {
        m_session.undoStack().push(new RemoveItems(step, canvas(), items));
    }
}

void EditActions::editText()
{
    const QList<workbench::CanvasItem*> items = selectedItems();
    if (items.size() == 1) {
        m_view.editText(*items.constFirst());
    }
}

void EditActions::alignItems(Edge edge)
{
    push(tr("Align"), align(selectedItems(), edge, canvas().pageRect()));
}

void EditActions::push(const QString& step, const QList<ItemChange>& changes)
{
    if (!changes.isEmpty()) {
        m_session.undoStack().push(new ChangeItems(step, changes));
    }
}

} // namespace window
