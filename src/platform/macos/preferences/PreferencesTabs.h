#pragma once

#include <cstddef>
#include <functional>

#import <AppKit/AppKit.h>

// The tabs of the preferences as buttons in the window's toolbar.
@interface QuorvelPreferencesTabs : NSTabViewController {
    std::function<void(std::size_t)> chosen;
}

// What happens once another tab has come to the front.
- (void)setChosen:(std::function<void(std::size_t)>)newChosen;

- (void)addTabWithTitle:(NSString*)title symbol:(NSString*)symbol view:(NSView*)view;

@end
