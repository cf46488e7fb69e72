// The parts of the print dialog.

#include "window/output/page_preview.h"
#include "window/output/print_dialog.h"
#include "window/output/record_chooser.h"
#include "window/output/sheet_editor.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace window {

namespace {

QToolButton* makeArrow(Qt::ArrowType arrow, const QString& name, QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setArrowType(arrow);
    button->setAccessibleName(name);
    button->setToolTip(name);
    return button;
}

} // namespace

QWidget* PrintDialog::makeForm()
{
    auto* panel = new QWidget(this);
    auto* form = new QFormLayout;
    form->addRow(tr("Pr&inter"), m_printer);
    form->addRow(tr("Labels"), makeLabelList());
    form->addRow(tr("Records"), m_records);
    form->addRow(tr("&Copies"), m_copies);
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(form);
    layout->addWidget(m_sheet);
    layout->addStretch();
    layout->addWidget(m_note);
    return panel;
}

QWidget* PrintDialog::makeLabelList()
{
    auto* panel = new QWidget(this);
    m_labels->setAccessibleName(tr("Labels to print"));
    m_labels->setMaximumHeight(fontMetrics().height() * 4);
    m_labels->setCurrentRow(0);
    auto* add = new QPushButton(tr("A&dd…"), panel);
    m_remove = new QPushButton(tr("Remo&ve"), panel);
    add->setAccessibleDescription(tr("Adds labels of other files to the print"));
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(m_remove);
    buttons->addStretch();
    auto* layout = new QHBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_labels, 1, Qt::AlignTop);
    panel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    layout->addLayout(buttons);
    connect(add, &QPushButton::clicked, this, &PrintDialog::askForLabels);
    connect(m_remove, &QPushButton::clicked, this, &PrintDialog::removeLabel);
    const auto follow = [this] { m_remove->setEnabled(m_labels->currentRow() > 0); };
    connect(m_labels, &QListWidget::currentRowChanged, this, follow);
    follow();
    return panel;
}

QWidget* PrintDialog::makePreview()
{
    auto* panel = new QWidget(this);
    m_back = makeArrow(Qt::LeftArrow, tr("Previous page"), panel);
    m_forward = makeArrow(Qt::RightArrow, tr("Next page"), panel);
    auto* pages = new QHBoxLayout;
    pages->addStretch();
    pages->addWidget(m_back);
    pages->addWidget(m_pageText);
    pages->addWidget(m_forward);
    pages->addStretch();
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_preview, 1);
    layout->addLayout(pages);
    connect(m_back, &QToolButton::clicked, this, [this] { showPage(m_page - 1); });
    connect(m_forward, &QToolButton::clicked, this, [this] { showPage(m_page + 1); });
    return panel;
}

// Makes the fields of all forms begin below each other.
void PrintDialog::alignForms()
{
    QList<QWidget*> captions;
    int width = 0;
    for (const QFormLayout* form : findChildren<QFormLayout*>()) {
        for (int row = 0; row < form->rowCount(); ++row) {
            const QLayoutItem* caption = form->itemAt(row, QFormLayout::LabelRole);
            if (caption != nullptr && caption->widget() != nullptr) {
                captions.append(caption->widget());
                width = std::max(width, caption->sizeHint().width());
            }
        }
    }
    for (QWidget* caption : captions) {
        caption->setMinimumWidth(width);
    }
}

} // namespace window
