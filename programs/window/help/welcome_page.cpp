#include "window/help/welcome_page.h"

#include "window/actions/actions.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace window {

namespace {

QPushButton* makeButton(const QString& text, QAction& action, QWidget* parent)
{
    auto* button = new QPushButton(text, parent);
    button->setToolTip(action.toolTip());
    button->setAccessibleDescription(action.statusTip());
    QObject::connect(button, &QPushButton::clicked, &action, &QAction::trigger);
    return button;
}

QLabel* makeLine(const QString& text, QWidget* parent)
{
    auto* line = new QLabel(text, parent);
    line->setAlignment(Qt::AlignCenter);
    line->setTextFormat(Qt::PlainText);
    line->setWordWrap(true);
    return line;
}

} // namespace

WelcomePage::WelcomePage(const Actions& actions, QWidget* parent)
    : QWidget(parent)
{
    QLabel* title = makeLine(tr("Drop a label here"), this);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    title->setFont(large);
    QLabel* kinds = makeLine(tr("Saved labels (*.label) and legacy ones: binary canvas files "
                                "(*.cnv, *.roc), XML labels (*.qmtx), OpenDocument texts and "
                                "drawings (*.odt, *.odg)"),
                             this);
    kinds->setForegroundRole(QPalette::PlaceholderText);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(makeButton(tr("&Open a Label…"), actions.at(ActionId::Open), this));
    buttons->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(48, 24, 48, 24);
    layout->setSpacing(16);
    layout->addStretch(2);
    layout->addWidget(title);
    layout->addWidget(kinds);
    layout->addLayout(buttons);
    layout->addStretch(3);
}

} // namespace window
