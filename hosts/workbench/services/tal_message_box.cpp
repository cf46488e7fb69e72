#include "host/services/tal_message_box.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

// The content of the box.
class TalMessageBox::Private
{
public:
    QLabel* text = nullptr;
    QDialogButtonBox* buttons = nullptr;
};

namespace {

QLabel* makeLabel(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(parent);
    // Messages quote texts of labels, which must not be interpreted as markup.
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

QDialogButtonBox::StandardButtons toBoxButtons(QFlags<QMessageBox::StandardButton> buttons)
{
    // The two enumerations have the same values.
    return QDialogButtonBox::StandardButtons(static_cast<int>(buttons));
}

QDialogButtonBox::StandardButton toBoxButton(QMessageBox::StandardButton button)
{
    return static_cast<QDialogButtonBox::StandardButton>(button);
}

} // namespace

TalMessageBox::TalMessageBox(const QString& title, const QString& text,
                             QFlags<QMessageBox::StandardButton> buttons,
                             QMessageBox::StandardButton defaultButton, QString detail,
                             QMap<QMessageBox::StandardButton, QString> captions)
    : d(std::make_unique<Private>())
{
    setWindowTitle(title);
    setAccessibleName(title);
    setAccessibleDescription(text);
    auto* layout = new QVBoxLayout(this);
    d->text = makeLabel(text, this);
    layout->addWidget(d->text);
    if (!detail.isEmpty()) {
        layout->addWidget(makeLabel(detail, this));
    }
    d->buttons = new QDialogButtonBox(toBoxButtons(buttons), this);
    layout->addWidget(d->buttons);
    for (auto caption = captions.cbegin(); caption != captions.cend(); ++caption) {
        if (QPushButton* button = d->buttons->button(toBoxButton(caption.key()))) {
            button->setText(caption.value());
        }
    }
    if (QPushButton* button = d->buttons->button(toBoxButton(defaultButton))) {
        button->setDefault(true);
    }
    connect(d->buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(d->buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    // A receiver of the signal deletes the box, which must not happen in its own event handler.
    connect(this, &QDialog::finished, this, &TalMessageBox::popupHideSignal, Qt::QueuedConnection);
}

TalMessageBox::~TalMessageBox() = default;
