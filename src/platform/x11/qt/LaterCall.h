#pragma once

#include <QTimer>
#include <functional>
#include <utility>

namespace quorvel::x11 {

// Calls a function once in the next turn of the main loop, however often it is asked to until then; never after it has
// gone itself. For what must not happen inside the signal of a widget that it may replace.
class LaterCall {
public:
    explicit LaterCall(std::function<void()> call)
    {
        timer.setSingleShot(true);
        timer.setInterval(0);
        QObject::connect(&timer, &QTimer::timeout, &timer, std::move(call));
    }

    void schedule() { timer.start(); }

private:
    QTimer timer;
};

} // namespace quorvel::x11
