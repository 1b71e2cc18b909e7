#include "platform/x11/qt/FocusMarking.h"

#include <QEvent>

namespace quorvel::x11 {

namespace {

class FocusMarking final : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* const window = static_cast<QWidget*>(watched);
        if (event->type() == QEvent::Show || event->type() == QEvent::WindowActivate) {
            window->setAttribute(Qt::WA_KeyboardFocusChange);
            if (auto* const focused = window->focusWidget()) {
                focused->update();
            }
        }
        return false;
    }
};

} // namespace

void alwaysMarkFocus(QWidget& window)
{
    window.installEventFilter(new FocusMarking(&window));
}

} // namespace quorvel::x11
