#pragma once

#import <AppKit/AppKit.h>

namespace quorvel::macos {

// What a tab of the preferences shows.
class Pane {
public:
    Pane() = default;
    Pane(const Pane&) = delete;
    Pane& operator=(const Pane&) = delete;
    virtual ~Pane() = default;

    virtual NSView* view() const = 0;
};

} // namespace quorvel::macos
