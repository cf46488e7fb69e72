#include "dialog_driver.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <utility>

DialogDriver::DialogDriver()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    qApp->installEventFilter(this);
}

DialogDriver::~DialogDriver()
{
    EXPECT_TRUE(isDone()) << "a dialog that was expected did not come";
}

void DialogDriver::expect(Answer answer)
{
    m_answers.push(std::move(answer));
}

void DialogDriver::expectButton(int standardButton)
{
    expect([standardButton](QDialog& dialog) {
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        ASSERT_NE(box, nullptr);
        QAbstractButton* button =
            box->button(static_cast<QMessageBox::StandardButton>(standardButton));
        ASSERT_NE(button, nullptr);
        button->click();
    });
}

void DialogDriver::expectButton(const QString& caption)
{
    expect([caption](QDialog& dialog) {
        const QList<QPushButton*> buttons = dialog.findChildren<QPushButton*>();
        for (QPushButton* button : buttons) {
            if (button->text().remove(QLatin1Char('&')) == caption) {
                button->click();
                return;
            }
        }
        ADD_FAILURE() << "no button " << caption.toStdString();
        dialog.reject();
    });
}

void DialogDriver::expectFile(const QString& fileName)
{
    expect([fileName](QDialog& dialog) {
        auto* files = qobject_cast<QFileDialog*>(&dialog);
        ASSERT_NE(files, nullptr);
        files->selectFile(fileName);
        // Same as the dialog's button; accept() is protected.
        QMetaObject::invokeMethod(files, "accept");
    });
}

void DialogDriver::expectCancel()
{
    expect([](QDialog& dialog) { dialog.reject(); });
}

bool DialogDriver::eventFilter(QObject* watched, QEvent* event)
{
    auto* dialog = qobject_cast<QDialog*>(watched);
    auto* progress = qobject_cast<QProgressDialog*>(watched);
    if (event->type() == QEvent::Show && progress != nullptr) {
        if (m_cancelsProgress) {
            QTimer::singleShot(0, progress, &QProgressDialog::canceled);
        }
    } else if (event->type() == QEvent::Show && dialog != nullptr) {
        // As soon as its event loop runs.
        QTimer::singleShot(0, dialog, [this, dialog] { answer(*dialog); });
    }
    return QObject::eventFilter(watched, event);
}

void DialogDriver::answer(QDialog& dialog)
{
    if (const auto* box = qobject_cast<QMessageBox*>(&dialog)) {
        m_texts.append(box->text() + QLatin1Char('\n') + box->informativeText());
    } else {
        m_texts.append(dialog.windowTitle());
    }
    if (m_answers.empty()) {
        ADD_FAILURE() << "unexpected dialog: " << m_texts.constLast().toStdString();
        dialog.reject();
        return;
    }
    const Answer next = std::move(m_answers.front());
    m_answers.pop();
    next(dialog);
}
