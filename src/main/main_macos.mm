#include <csignal>
#include <cstdlib>
#include <memory>

#import <AppKit/AppKit.h>

#include "main/MacProgram.h"
#include "platform/macos/Retained.h"
#include "platform/macos/desktop/MainMenu.h"

// The program is made with its delegate, before launching ends, and goes with the termination: [NSApp run] never
// returns.
@interface QuorvelApplicationDelegate : NSObject <NSApplicationDelegate> {
    std::unique_ptr<quorvel::MacProgram> program;
}

@end

@implementation QuorvelApplicationDelegate

- (instancetype)init
{
    self = [super init];
    if (self != nil) {
        program = std::make_unique<quorvel::MacProgram>([NSBundle mainBundle]);
    }
    return self;
}

- (void)applicationDidFinishLaunching:(NSNotification*)notification
{
    program->applicationDidFinishLaunching();
}

- (void)applicationWillTerminate:(NSNotification*)notification
{
    program->applicationWillTerminate();
    program.reset();
}

// Nothing is restored; without this answer the system says so at every start.
- (BOOL)applicationSupportsSecureRestorableState:(NSApplication*)application
{
    return YES;
}

@end

int main()
{
    // A reader of the log that goes away is no reason to end.
    std::signal(SIGPIPE, SIG_IGN);
    @autoreleasepool {
        NSApplication* const application = [NSApplication sharedApplication];
        const auto delegate =
            quorvel::macos::Retained<QuorvelApplicationDelegate*>::adopt([[QuorvelApplicationDelegate alloc] init]);
        [application setDelegate:delegate.get()];
        [application setMainMenu:quorvel::macos::mainMenu().get()];
        [application run];
    }
    return EXIT_SUCCESS;
}
