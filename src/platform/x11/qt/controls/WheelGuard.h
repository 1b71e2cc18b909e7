#pragma once

#include <QWidget>

namespace quorvel::x11 {

// Lets the wheel over the widget scroll the pane, so that scrolling past a control never changes its setting.
void keepWheelForScrolling(QWidget& widget);

} // namespace quorvel::x11
