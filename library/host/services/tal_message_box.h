#pragma once

#include "host/services/visibility.h"

#include <QDialog>
#include <QMap>
#include <QMessageBox>
#include <QString>

#include <memory>

/// The host's message box.
///
/// An importer creates one and announces it by its popupShowSignal(QWidget*); the host decides when
/// and how to show it. The box emits popupHideSignal() when the user has closed it; the importer
/// then deletes it.
class LABELPORT_HOST_SERVICE TalMessageBox : public QDialog
{
    Q_OBJECT

public:
    /// @param title         window title
    /// @param text          the message; lines end in "\n"
    /// @param buttons       the buttons to show
    /// @param defaultButton the button that Enter presses
    /// @param detail        an additional text, may be empty
    /// @param captions      captions of buttons that differ from the usual ones
    TalMessageBox(const QString& title, const QString& text,
                  QFlags<QMessageBox::StandardButton> buttons,
                  QMessageBox::StandardButton defaultButton, QString detail,
                  QMap<QMessageBox::StandardButton, QString> captions);
    ~TalMessageBox() override;

Q_SIGNALS:
    /// The user has closed the box.
    void popupHideSignal();

private:
    class Private;
    std::unique_ptr<Private> d;
};
