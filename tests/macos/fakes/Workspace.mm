#import <AppKit/AppKit.h>

#include "macos/fakes/FakeDesktop.h"

using namespace quorvel;
using fakes::FakeDesktop;

namespace {

SimulatedWorkspace& workspace()
{
    return FakeDesktop::current().desktop.workspace;
}

NSRunningApplication* object(const std::optional<RunningApplication>& application)
{
    if (!application) {
        return nil;
    }
    NSRunningApplication* const result = [[[NSRunningApplication alloc] init] autorelease];
    [result setProcessIdentifier:FakeDesktop::onSystem(application->process)];
    [result setActivationPolicy:static_cast<NSApplicationActivationPolicy>(application->activationPolicy)];
    if (application->localizedName) {
        [result setLocalizedName:[NSString stringWithUTF8String:application->localizedName->c_str()]];
    }
    return result;
}

} // namespace

@implementation NSRunningApplication

@synthesize localizedName = _localizedName;
@synthesize processIdentifier = _processIdentifier;
@synthesize activationPolicy = _activationPolicy;

+ (instancetype)runningApplicationWithProcessIdentifier:(pid_t)process
{
    return object(workspace().runningApplication(FakeDesktop::onDesktop(process)));
}

- (void)dealloc
{
    [_localizedName release];
    [super dealloc];
}

- (BOOL)isTerminated
{
    return !workspace().runningApplication(FakeDesktop::onDesktop(_processIdentifier));
}

- (BOOL)activateWithOptions:(NSApplicationActivationOptions)options
{
    workspace().activate(FakeDesktop::onDesktop(_processIdentifier));
    return ![self isTerminated];
}

@end

@implementation NSWorkspaceOpenConfiguration

@synthesize createsNewApplicationInstance = _createsNewApplicationInstance;

+ (instancetype)configuration
{
    return [[[self alloc] init] autorelease];
}

@end

NSString* const NSWorkspaceDidActivateApplicationNotification = @"NSWorkspaceDidActivateApplicationNotification";
NSString* const NSWorkspaceApplicationKey = @"NSWorkspaceApplicationKey";

@implementation NSWorkspace

+ (NSWorkspace*)sharedWorkspace
{
    static NSWorkspace* const only = [[NSWorkspace alloc] init];
    return only;
}

- (NSRunningApplication*)frontmostApplication
{
    return object(workspace().frontmostApplication());
}

- (NSArray*)runningApplications
{
    NSMutableArray* const result = [NSMutableArray array];
    for (const auto& each : workspace().runningApplications()) {
        [result addObject:object(each)];
    }
    return result;
}

- (NSNotificationCenter*)notificationCenter
{
    static NSNotificationCenter* const only = [[NSNotificationCenter alloc] init];
    return only;
}

- (BOOL)openURL:(NSURL*)url
{
    return workspace().open([[url absoluteString] UTF8String]);
}

- (void)openApplicationAtURL:(NSURL*)url
               configuration:(NSWorkspaceOpenConfiguration*)configuration
           completionHandler:(void (^)(NSRunningApplication*, NSError*))completion
{
    if (![configuration createsNewApplicationInstance]) {
        fakes::complain("The running instance would come forward instead of a second one");
    }
    void (^const answer)(NSRunningApplication*, NSError*) = [[completion copy] autorelease];
    workspace().relaunch([answer = [answer retain]] {
        answer(nil, nil);
        [answer release];
    });
}

@end
