#include "platform/macos/preferences/FieldEditing.h"

#include <utility>

#include "platform/macos/Strings.h"

@implementation QuorvelFieldDelegate

- (void)setChanged:(std::function<void()>)newChanged ended:(std::function<void()>)newEnded
{
    changed = std::move(newChanged);
    ended = std::move(newEnded);
}

- (void)controlTextDidChange:(NSNotification*)notification
{
    if (changed) {
        changed();
    }
}

- (void)controlTextDidEndEditing:(NSNotification*)notification
{
    if (ended) {
        ended();
    }
}

@end

namespace quorvel::macos {

FieldEditing::FieldEditing(NSTextField* field, const Actions& actions)
    : field(Retained<NSTextField*>::retain(field)),
      delegate(Retained<QuorvelFieldDelegate*>::adopt([[QuorvelFieldDelegate alloc] init]))
{
    [delegate.get() setChanged:withText(actions.changed) ended:withText(actions.ended)];
    [field setDelegate:delegate.get()];
}

FieldEditing::~FieldEditing()
{
    [delegate.get() setChanged:{} ended:{}];
    [field.get() setDelegate:nil];
}

std::function<void()> FieldEditing::withText(const Action& action) const
{
    if (!action) {
        return {};
    }
    return [view = field.get(), action] { action(utf8([view stringValue])); };
}

} // namespace quorvel::macos
