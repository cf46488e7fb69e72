#include "window/window_picture.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPixmap>
#include <QScreen>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <cstdlib>

namespace window {

namespace {

// A screenshot of the window, or the window rendered again if the system forbids screenshots.
QPixmap shownBy(QWidget& window)
{
    const QPixmap pixmap = window.screen()->grabWindow(window.winId());
    return pixmap.isNull() ? window.grab() : pixmap;
}

} // namespace

WindowPicture::WindowPicture(QWidget& window, const QString& fileName)
    : m_window(window)
    , m_fileName(fileName)
{
    window.installEventFilter(this);
}

bool WindowPicture::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint && !m_isRequested) {
        m_isRequested = true;
        // After the paint event and the updates that it has scheduled.
        QTimer::singleShot(0, this, [this] { QTimer::singleShot(0, this, &WindowPicture::take); });
    }
    return QObject::eventFilter(watched, event);
}

void WindowPicture::take()
{
    m_window.repaint();
    const bool isWritten = shownBy(m_window).save(m_fileName, "PNG");
    if (isWritten) {
        std::printf("%s\n", qUtf8Printable(m_fileName));
    } else {
        const QString message = tr("Cannot write \"%1\".").arg(m_fileName);
        std::fprintf(stderr, "labelport-workbench: %s\n", qUtf8Printable(message));
    }
    QCoreApplication::exit(isWritten ? EXIT_SUCCESS : EXIT_FAILURE);
}

} // namespace window
