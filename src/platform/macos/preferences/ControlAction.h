#pragma once

#include <functional>

#import <AppKit/AppKit.h>

#include "platform/macos/Retained.h"

// Receives the action of a control.
@interface QuorvelActionTarget : NSObject {
    std::function<void()> action;
}

- (void)setAction:(std::function<void()>)newAction;
- (void)act:(id)sender;

@end

namespace quorvel::macos {

// What a control does, until this goes.
class ControlAction {
public:
    ControlAction(NSControl* control, std::function<void()> action);
    ControlAction(const ControlAction&) = delete;
    ControlAction& operator=(const ControlAction&) = delete;
    ~ControlAction();

private:
    Retained<NSControl*> control;
    Retained<QuorvelActionTarget*> target;
};

} // namespace quorvel::macos
