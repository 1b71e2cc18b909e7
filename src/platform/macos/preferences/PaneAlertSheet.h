#pragma once

#include <functional>
#include <memory>
#include <string>

#import <AppKit/AppKit.h>

#include "base/WeakGuard.h"
#include "platform/PaneAlert.h"
#include "platform/macos/Retained.h"
#include "platform/macos/preferences/FieldEditing.h"

namespace quorvel::macos {

// A question as a sheet over a window, as long as this lives.
class PaneAlertSheet {
public:
    struct Actions {
        std::function<void(const std::string& id)> press;
        std::function<void(const std::string& id, const std::string& text)> setText;
    };

    PaneAlertSheet(const PaneAlert& question, Actions actions, NSWindow* owner);
    PaneAlertSheet(const PaneAlertSheet&) = delete;
    PaneAlertSheet& operator=(const PaneAlertSheet&) = delete;
    ~PaneAlertSheet();

    // Whether it still asks that.
    bool isFor(const PaneAlert& question) const;

private:
    void addField(const PaneTextField& field);
    void answered(NSModalResponse response);

    PaneAlert shown;
    Actions actions;
    Retained<NSWindow*> owner;
    Retained<NSAlert*> alert;
    Retained<NSTextField*> field;
    std::unique_ptr<FieldEditing> editing;
    bool isAnswered = false;
    WeakGuard weakly;
};

} // namespace quorvel::macos
