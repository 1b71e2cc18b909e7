#pragma once

#include <QAbstractButton>
#include <functional>
#include <string>

#include "platform/PaneButton.h"

namespace quorvel::x11 {

// Shows the button's title or symbol, its state and its name for screen readers.
void showPaneButton(QAbstractButton& widget, const PaneButton& button);

// A push button that calls `pressed` with its id.
QAbstractButton* createPaneButton(const PaneButton& button, std::function<void(const std::string&)> pressed,
                                  QWidget* parent);

} // namespace quorvel::x11
