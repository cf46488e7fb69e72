#include "window/properties/property_delegate.h"

#include "window/properties/property_model.h"
#include "workbench/items/label_document.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFontComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextEdit>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

constexpr int TextEditorLines = 4;

const PropertyRow& rowOf(const QModelIndex& index)
{
    return static_cast<const PropertyModel*>(index.model())->rowAt(index.row());
}

QComboBox* makeChoiceEditor(const PropertyRow& row, QWidget* parent)
{
    auto* box = new QComboBox(parent);
    for (const NamedCode& choice : row.choices) {
        box->addItem(choice.name, choice.code);
    }
    return box;
}

double shownNumber(const PropertyRow& row, LengthUnit unit)
{
    const double number = row.current.toDouble();
    return row.kind == PropertyKind::Length ? inUnit(number, unit) : number;
}

bool isText(PropertyKind kind)
{
    return kind == PropertyKind::Text || kind == PropertyKind::RichText;
}

} // namespace

QWidget* PropertyDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const
{
    Q_UNUSED(option)
    const PropertyRow& row = rowOf(index);
    QWidget* editor = nullptr;
    switch (row.kind) {
    case PropertyKind::Text:
    case PropertyKind::RichText:
        editor = makeTextEditor(row, parent);
        break;
    case PropertyKind::Choice:
        editor = makeChoiceEditor(row, parent);
        break;
    case PropertyKind::FontFamily:
        editor = new QFontComboBox(parent);
        break;
    case PropertyKind::Color:
    case PropertyKind::Picture:
    case PropertyKind::Symbol:
        Q_EMIT dialogRequested(index);
        return nullptr;
    case PropertyKind::Note:
    case PropertyKind::Flag:
        return nullptr;
    default:
        editor = makeNumberEditor(row, parent);
    }
    editor->setAccessibleName(row.name);
    return editor;
}

QWidget* PropertyDelegate::makeNumberEditor(const PropertyRow& row, QWidget* parent) const
{
    auto* box = new QDoubleSpinBox(parent);
    const double factor = row.kind == PropertyKind::Length ? pointsPerUnit(m_unit) : 1.0;
    box->setRange(row.minimum / factor, row.maximum / factor);
    box->setFrame(false);
    box->setSpecialValueText(row.minimumName);
    switch (row.kind) {
    case PropertyKind::Length:
        box->setDecimals(m_unit == LengthUnit::Inch ? 3 : 2);
        box->setSuffix(u' ' + unitSymbol(m_unit));
        break;
    case PropertyKind::Points:
        box->setDecimals(row.current.toDouble() == qRound(row.current.toDouble()) ? 0 : 2);
        box->setSuffix(u' ' + tr("pt"));
        break;
    case PropertyKind::Angle:
        box->setDecimals(2);
        box->setSuffix(QString(QChar(0xb0)));
        break;
    default:
        box->setDecimals(0);
        break;
    }
    return box;
}

QWidget* PropertyDelegate::makeTextEditor(const PropertyRow& row, QWidget* parent) const
{
    auto* editor = new QTextEdit(parent);
    editor->setTabChangesFocus(true);
    editor->setAcceptRichText(false);
    editor->setToolTip(tr("Ctrl+Enter ends editing, Esc cancels it"));
    if (row.kind == PropertyKind::RichText) {
        editor->setDocument(new workbench::LabelDocument(editor));
    }
    const int property = row.property;
    connect(editor, &QTextEdit::textChanged, this,
            [this, editor, property] { Q_EMIT textTyped(property, editor->toPlainText()); });
    return editor;
}

void PropertyDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const PropertyRow& row = rowOf(index);
    if (auto* text = qobject_cast<QTextEdit*>(editor)) {
        if (row.kind == PropertyKind::RichText) {
            text->setHtml(row.current.toString());
        } else {
            text->setPlainText(row.current.toString());
            text->selectAll();
        }
    } else if (auto* family = qobject_cast<QFontComboBox*>(editor)) {
        family->setCurrentText(row.current.toString());
        family->lineEdit()->selectAll();
    } else if (auto* choices = qobject_cast<QComboBox*>(editor)) {
        choices->setCurrentIndex(row.current.isValid() ? choices->findData(row.current.toInt())
                                                       : -1);
    } else if (auto* number = qobject_cast<QDoubleSpinBox*>(editor)) {
        number->setValue(shownNumber(row, m_unit));
    }
}

QVariant PropertyDelegate::editedValue(const QWidget& editor, const PropertyRow& row) const
{
    if (const auto* text = qobject_cast<const QTextEdit*>(&editor)) {
        return row.kind == PropertyKind::RichText ? workbench::documentHtml(*text->document())
                                                  : text->toPlainText();
    }
    if (const auto* family = qobject_cast<const QFontComboBox*>(&editor)) {
        return family->currentText();
    }
    if (const auto* choices = qobject_cast<const QComboBox*>(&editor)) {
        return choices->currentData();
    }
    const auto* number = qobject_cast<const QDoubleSpinBox*>(&editor);
    // A number that was only shown, rounded, must not change.
    const double shown = shownNumber(row, m_unit);
    if (number == nullptr ||
        (row.current.isValid() &&
         std::abs(number->value() - shown) < 0.5 * std::pow(10.0, -number->decimals()))) {
        return row.current;
    }
    return row.kind == PropertyKind::Length ? number->value() * pointsPerUnit(m_unit)
                                            : number->value();
}

void PropertyDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const
{
    const PropertyRow& row = rowOf(index);
    const auto* text = qobject_cast<const QTextEdit*>(editor);
    if (text != nullptr && !text->document()->isModified()) {
        return;
    }
    const QVariant value = editedValue(*editor, row);
    if (value.isValid()) {
        model->setData(index, value);
    }
}

void PropertyDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                            const QModelIndex& index) const
{
    QRect place = option.rect;
    if (isText(rowOf(index).kind)) {
        const QRect room = editor->parentWidget()->rect();
        place.setHeight(
            std::min(editor->fontMetrics().lineSpacing() * TextEditorLines + 12, room.height()));
        place.moveBottom(std::min(place.bottom(), room.bottom()));
    }
    editor->setGeometry(place);
}

bool PropertyDelegate::eventFilter(QObject* editor, QEvent* event)
{
    auto* text = qobject_cast<QTextEdit*>(editor);
    const bool isShortcut = event->type() == QEvent::ShortcutOverride;
    if (text != nullptr && (isShortcut || event->type() == QEvent::KeyPress)) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (isEnter && isShortcut) {
            event->accept();
            return true;
        }
        if (isEnter && key->modifiers().testFlag(Qt::ControlModifier)) {
            Q_EMIT commitData(text);
            Q_EMIT closeEditor(text);
            return true;
        }
        // A plain Enter begins a new line.
        if (isEnter) {
            return false;
        }
    }
    return QStyledItemDelegate::eventFilter(editor, event);
}

} // namespace window
