#pragma once

#include "window/actions/actions.h"
#include "window/edit/arrange.h"
#include "window/label/label_session.h"

#include <QObject>

class QMenu;

namespace window {

class CanvasView;

/// The commands that change the selected items: clipboard, delete, duplicate, order, alignment.
class EditActions final : public QObject
{
    Q_OBJECT

public:
    /// Nothing is owned; all must outlive this object.
    EditActions(const Actions& actions, LabelSession& session, CanvasView& view, QObject* parent);

    /// Enables the commands that the selection permits.
    void refresh();

    /// The commands for a context menu.
    void fillMenu(QMenu& menu) const;

Q_SIGNALS:
    /// A message for the status bar.
    void hintShown(const QString& text);

private:
    void connectOrder();
    void connectAlignment();
    void copy();
    void cut();
    void paste();
    void duplicate();
    void remove(const QString& step);
    void editText();
    void add(const QString& step, QList<workbench::ItemValues> values);
    void push(const QString& step, const QList<ItemChange>& changes);
    void alignItems(Edge edge);
    [[nodiscard]] QList<workbench::CanvasItem*> selectedItems() const;
    [[nodiscard]] workbench::Canvas& canvas() const;

    const Actions& m_actions;
    LabelSession& m_session;
    CanvasView& m_view;
};

} // namespace window
