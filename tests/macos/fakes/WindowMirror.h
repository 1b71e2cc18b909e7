#pragma once

#include <memory>
#include <string>

#import <AppKit/AppKit.h>

#include "platform/OverlayWindows.h"

namespace quorvel::fakes {

// What the desktop in memory knows of an NSWindow: a window of its own from when the NSWindow is first shown.
class WindowMirror {
public:
    explicit WindowMirror(NSWindow* window) : window(window) {}

    void show();
    void hide();
    void place(NSRect newFrame);
    void makeKey();
    bool isKey() const { return panel != nullptr && panel->isKey(); }

    NSRect frame = NSZeroRect;
    unsigned collectionBehavior = 0;
    NSInteger animationBehavior = 0;
    std::string frameAutosaveName;
    NSSize leastSize = NSZeroSize; // that the content's constraints let it have

private:
    void create();
    WindowDescription description() const;

    NSWindow* window;
    std::unique_ptr<OverlayWindow> shown;
    OverlayPanel* panel = nullptr; // the same, where it can be key
};

// The mirror of a window that exists.
WindowMirror& mirrorOf(NSWindow* window);
void forgetMirror(NSWindow* window);

} // namespace quorvel::fakes
