#include "platform/x11/qt/controls/WheelGuard.h"

#include <QEvent>

namespace quorvel::x11 {

namespace {

class WheelGuard final : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        Q_UNUSED(watched)
        if (event->type() != QEvent::Wheel) {
            return false;
        }
        event->ignore(); // it goes on to the widget around this one
        return true;
    }
};

} // namespace

void keepWheelForScrolling(QWidget& widget)
{
    widget.installEventFilter(new WheelGuard(&widget));
}

} // namespace quorvel::x11
