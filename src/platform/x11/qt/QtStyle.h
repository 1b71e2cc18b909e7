#pragma once

#include "base/Subscription.h"
#include "platform/x11/desktop/ToolkitUi.h"

namespace quorvel::x11 {

// Gives the application the desktop's light or dark colours and its font, now and whenever they change.
class QtStyle {
public:
    explicit QtStyle(const ToolkitHost& host);
    QtStyle(const QtStyle&) = delete;
    QtStyle& operator=(const QtStyle&) = delete;

private:
    void apply(const DesktopStyle& style);

    DesktopStyle applied;
    Subscription changes;
};

} // namespace quorvel::x11
