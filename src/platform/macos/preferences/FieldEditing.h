#pragma once

#include <functional>
#include <string>

#import <AppKit/AppKit.h>

#include "platform/macos/Retained.h"

// Hears what is typed into a text field.
@interface QuorvelFieldDelegate : NSObject <NSTextFieldDelegate> {
    std::function<void()> changed;
    std::function<void()> ended;
}

- (void)setChanged:(std::function<void()>)newChanged ended:(std::function<void()>)newEnded;

@end

namespace quorvel::macos {

// What the typing in a field does, until this goes.
class FieldEditing {
public:
    using Action = std::function<void(const std::string& text)>;
    struct Actions {
        Action changed; // with every key
        Action ended;   // the field has let the keyboard go, or Return was pressed
    };

    FieldEditing(NSTextField* field, const Actions& actions);
    FieldEditing(const FieldEditing&) = delete;
    FieldEditing& operator=(const FieldEditing&) = delete;
    ~FieldEditing();

private:
    std::function<void()> withText(const Action& action) const;

    Retained<NSTextField*> field;
    Retained<QuorvelFieldDelegate*> delegate;
};

} // namespace quorvel::macos
