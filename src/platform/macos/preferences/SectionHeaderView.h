#pragma once

#include <functional>

#import <AppKit/AppKit.h>

#include "platform/LayoutsPaneModel.h"
#include "platform/macos/Retained.h"
#include "platform/macos/preferences/ControlAction.h"

namespace quorvel::macos {

// The head of a section of layouts; a click on it shows or hides the section.
class SectionHeaderView {
public:
    SectionHeaderView(const LayoutSectionHeader& header, std::function<void()> click);

    NSView* view() const { return button.get(); }

private:
    Retained<NSButton*> button;
    ControlAction action;
};

} // namespace quorvel::macos
