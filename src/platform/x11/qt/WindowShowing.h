#pragma once

class QWidget;

namespace quorvel::x11 {

struct ToolkitHost;

// Shows the window in the middle of the screen with the pointer, in front, with the keyboard.
void showInTheMiddle(QWidget& window, const ToolkitHost& host);

} // namespace quorvel::x11
