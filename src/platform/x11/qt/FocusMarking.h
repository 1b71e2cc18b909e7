#pragma once

#include <QWidget>

namespace quorvel::x11 {

// Marks what has the focus in the window whenever it is active. Without this the style waits for the Tab key.
void alwaysMarkFocus(QWidget& window);

} // namespace quorvel::x11
