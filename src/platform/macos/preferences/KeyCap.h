#pragma once

#include <string>

#import <AppKit/AppKit.h>

#include "platform/Form.h"
#include "platform/macos/Retained.h"
#include "platform/macos/preferences/PaneLabels.h"

namespace quorvel::macos {

// A shortcut as a key of the keyboard; its edge shows that one is being recorded.
class KeyCap {
public:
    KeyCap();

    void show(const ShortcutControl& control, const std::string& accessibleName);
    NSView* view() const { return box.get(); }

private:
    Retained<NSBox*> box;
    Label label;
};

} // namespace quorvel::macos
