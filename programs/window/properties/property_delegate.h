#pragma once

#include "window/properties/length_unit.h"

#include <QStyledItemDelegate>

namespace window {

struct PropertyRow;

/// Edits the values of a PropertyModel in place, each kind with its own editor. Colors are chosen
/// in a dialog, pictures and symbols from a file.
class PropertyDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setUnit(LengthUnit unit) { m_unit = unit; }

    [[nodiscard]] QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

Q_SIGNALS:
    /// The text in the editor of this property has changed.
    void textTyped(int property, const QString& text) const;
    /// A dialog asks for the value: a color, or the file of a picture or symbol.
    void dialogRequested(const QPersistentModelIndex& index) const;

protected:
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    [[nodiscard]] QWidget* makeNumberEditor(const PropertyRow& row, QWidget* parent) const;
    [[nodiscard]] QWidget* makeTextEditor(const PropertyRow& row, QWidget* parent) const;
    [[nodiscard]] QVariant editedValue(const QWidget& editor, const PropertyRow& row) const;

    LengthUnit m_unit = LengthUnit::Millimeter;
};

} // namespace window
