#include "platform/x11/qt/WindowShowing.h"

#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <cstdint>

#include "platform/x11/desktop/ToolkitUi.h"

namespace quorvel::x11 {

namespace {

// Activates a window as soon as the window manager has shown it; asked before that, it would not know the window.
class ActivationOnExposure final : public QObject {
public:
    ActivationOnExposure(QWindow& window, const ToolkitHost& host) : QObject(&window), window(window), host(host)
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        Q_UNUSED(watched)
        if (event->type() == QEvent::Expose && window.isExposed()) {
            host.activate(static_cast<std::uint32_t>(window.winId()));
            deleteLater();
        }
        return false;
    }

private:
    QWindow& window;
    const ToolkitHost& host;
};

} // namespace

// What opened the window may have been another window of the program or none at all, so that the toolkit knows no time
// of a press by which window managers let a window come to the front: the program asks in its stead.
void showInTheMiddle(QWidget& window, const ToolkitHost& host)
{
    const auto* screen = QGuiApplication::screenAt(QCursor::pos());
    if (screen == nullptr) {
        screen = QGuiApplication::primaryScreen();
    }
    if (screen != nullptr) {
        const QRect area = screen->availableGeometry();
        QRect frame(QPoint(0, 0), window.size().boundedTo(area.size()).expandedTo(window.minimumSize()));
        frame.moveCenter(area.center());
        frame.moveTo(std::max(area.left(), frame.left()), std::max(area.top(), frame.top()));
        window.setGeometry(frame);
    }
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.setVisible(true);
    window.raise();
    auto* const handle = window.windowHandle();
    if (handle->isExposed()) {
        host.activate(static_cast<std::uint32_t>(handle->winId()));
    } else {
        new ActivationOnExposure(*handle, host);
    }
}

} // namespace quorvel::x11
