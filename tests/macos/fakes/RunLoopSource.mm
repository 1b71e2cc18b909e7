#import "macos/fakes/RunLoopSource.h"

#include "macos/fakes/FakeDesktop.h"

using namespace quorvel::fakes;

@implementation QuorvelRunLoopSource

@synthesize mode = _mode;

- (void)dealloc
{
    [_mode release];
    [super dealloc];
}

- (void)modeDidChange
{}

@end

extern "C" {

CFRunLoopRef CFRunLoopGetMain()
{
    return reinterpret_cast<CFRunLoopRef>([NSRunLoop mainRunLoop]);
}

void CFRunLoopAddSource(CFRunLoopRef, CFRunLoopSourceRef reference, CFRunLoopMode mode)
{
    QuorvelRunLoopSource* const source = as<QuorvelRunLoopSource*>(reference);
    if ([source mode] == nil) {
        [source retain]; // as the run loop does
        [source setMode:as<NSString*>(mode)];
        [source modeDidChange];
        ++FakeDesktop::current().runLoopSources;
    }
}

void CFRunLoopRemoveSource(CFRunLoopRef, CFRunLoopSourceRef reference, CFRunLoopMode mode)
{
    QuorvelRunLoopSource* const source = as<QuorvelRunLoopSource*>(reference);
    if ([[source mode] isEqual:as<NSString*>(mode)]) {
        [source setMode:nil];
        [source modeDidChange];
        --FakeDesktop::current().runLoopSources;
        [source release];
    }
}
}
