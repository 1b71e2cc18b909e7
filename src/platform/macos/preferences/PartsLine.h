#pragma once

#include <initializer_list>

#import <AppKit/AppKit.h>

#include "platform/macos/preferences/PaneBox.h"

namespace quorvel::macos {

// Parts of a control side by side, each as large as it is.
class PartsLine {
public:
    PartsLine(std::initializer_list<NSView*> parts);

    // After a part has got another size.
    void arrange() const;
    NSView* view() const { return box.view(); }

private:
    PaneBox box;
};

} // namespace quorvel::macos
