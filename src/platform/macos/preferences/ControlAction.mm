#include "platform/macos/preferences/ControlAction.h"

#include <utility>

@implementation QuorvelActionTarget

- (void)setAction:(std::function<void()>)newAction
{
    action = std::move(newAction);
}

- (void)act:(id)sender
{
    action();
}

@end

namespace quorvel::macos {

ControlAction::ControlAction(NSControl* control, std::function<void()> action)
    : control(Retained<NSControl*>::retain(control)),
      target(Retained<QuorvelActionTarget*>::adopt([[QuorvelActionTarget alloc] init]))
{
    [target.get() setAction:std::move(action)];
    [control setTarget:target.get()];
    [control setAction:@selector(act:)];
}

ControlAction::~ControlAction()
{
    [control.get() setTarget:nil];
    [control.get() setAction:nullptr];
}

} // namespace quorvel::macos
