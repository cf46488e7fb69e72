#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace window {

/// Takes a picture of a window as the screen shows it, as soon as it is there, and ends
/// the program: for documentation, and to see that the program comes up.
class WindowPicture final : public QObject
{
    Q_OBJECT

public:
    /// The window is not owned.
    WindowPicture(QWidget& window, const QString& fileName, QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void take();

    QWidget& m_window;
    QString m_fileName;
    bool m_isAsked = false;
};

} // namespace window
