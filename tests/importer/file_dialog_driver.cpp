#include "file_dialog_driver.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

void whenDialogWaits(const std::function<void(QFileDialog&)>& act)
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QTimer::singleShot(0, qApp, [act] {
        QWidget* modal = QApplication::activeModalWidget();
        auto* dialog = qobject_cast<QFileDialog*>(modal);
        ASSERT_NE(dialog, nullptr) << "no open-file dialog is waiting";
        act(*dialog);
        if (dialog->isVisible()) {
            ADD_FAILURE() << "the dialog stayed open";
            dialog->reject();
        }
    });
}

} // namespace

void FileDialogDriver::pick(const QString& fileName)
{
    whenDialogWaits([fileName](QFileDialog& dialog) {
        auto* edit = dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
        ASSERT_NE(edit, nullptr);
        edit->setText(fileName);
        static_cast<QDialog&>(dialog).accept();
    });
}

void FileDialogDriver::cancel()
{
    whenDialogWaits([](QFileDialog& dialog) { dialog.reject(); });
}

void FileDialogDriver::inspect(const std::function<void(const QFileDialog&)>& look)
{
    whenDialogWaits([look](QFileDialog& dialog) {
        look(dialog);
        dialog.reject();
    });
}
