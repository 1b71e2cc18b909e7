#pragma once

#include <functional>
#include <string>

#import <AppKit/AppKit.h>

#include "platform/PaneButton.h"
#include "platform/macos/Retained.h"
#include "platform/macos/preferences/ControlAction.h"

namespace quorvel::macos {

// A button of the preferences: a symbol, or a title where it has none.
class PaneButtonView {
public:
    using Press = std::function<void(const std::string& id)>;

    PaneButtonView(const PaneButton& button, Press press);

    // The same button as it is now. It is as wide as the widest of the titles that it has had.
    void show(const PaneButton& button);
    NSButton* view() const { return widget.get(); }

private:
    Retained<NSButton*> widget;
    ControlAction action;
    std::string shownSymbol;
};

} // namespace quorvel::macos
