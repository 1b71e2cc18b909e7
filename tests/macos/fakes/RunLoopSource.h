#pragma once

#import "macos/fakes/FakeObject.h"

// A source of the run loop, which delivers while it is in there.
@interface QuorvelRunLoopSource : QuorvelFakeObject {
    NSString* _mode;
}

@property(nonatomic, copy) NSString* mode; // nil while it is in no run loop

// The mode has changed.
- (void)modeDidChange;

@end
