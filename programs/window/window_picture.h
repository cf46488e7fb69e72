#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace window {

/// Takes a picture of a window after its first paint, as the screen shows it, and exits the
/// program with status 0, or 1 if the file cannot be written.
class WindowPicture final : public QObject
{
    Q_OBJECT

public:
    /// The window is not owned.
    WindowPicture(QWidget& window, const QString& fileName);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void take();

    QWidget& m_window;
    QString m_fileName;
    bool m_isRequested = false;
};

} // namespace window
