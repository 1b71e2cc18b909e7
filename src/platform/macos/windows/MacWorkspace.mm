#include "platform/macos/windows/MacWorkspace.h"

#import <AppKit/AppKit.h>

#include "platform/MainQueue.h"
#include "platform/macos/Strings.h"

namespace quorvel::macos {

namespace {

ActivationPolicy policy(NSApplicationActivationPolicy policy)
{
    switch (policy) {
    case NSApplicationActivationPolicyRegular:
        return ActivationPolicy::regular;
    case NSApplicationActivationPolicyAccessory:
        return ActivationPolicy::accessory;
    case NSApplicationActivationPolicyProhibited:
        break;
    }
    return ActivationPolicy::prohibited;
}

std::optional<RunningApplication> description(NSRunningApplication* application)
{
    if (application == nil || [application isTerminated]) {
        return std::nullopt;
    }
    NSString* const name = [application localizedName];
    return RunningApplication{[application processIdentifier],
                              name != nil ? std::optional(utf8(name)) : std::nullopt,
                              policy([application activationPolicy])};
}

} // namespace

ProcessId MacWorkspace::ownProcess() const
{
    return [[NSProcessInfo processInfo] processIdentifier];
}

std::optional<RunningApplication> MacWorkspace::frontmostApplication()
{
    @autoreleasepool {
        return description([[NSWorkspace sharedWorkspace] frontmostApplication]);
    }
}

std::optional<RunningApplication> MacWorkspace::runningApplication(ProcessId process)
{
    @autoreleasepool {
        return description([NSRunningApplication runningApplicationWithProcessIdentifier:process]);
    }
}

std::vector<RunningApplication> MacWorkspace::runningApplications()
{
    @autoreleasepool {
        std::vector<RunningApplication> result;
        for (NSRunningApplication* each in [[NSWorkspace sharedWorkspace] runningApplications]) {
            if (auto application = description(each)) {
                result.push_back(*std::move(application));
            }
        }
        return result;
    }
}

void MacWorkspace::activate(ProcessId process)
{
    @autoreleasepool {
        constexpr NSApplicationActivationOptions none = 0;
        [[NSRunningApplication runningApplicationWithProcessIdentifier:process] activateWithOptions:none];
    }
}

void MacWorkspace::activateSelf()
{
    [NSApp activateIgnoringOtherApps:YES];
}

bool MacWorkspace::open(std::string_view address)
{
    @autoreleasepool {
        // Newer systems repair what is no address, so its parts are looked at.
        NSURL* const url = [NSURL URLWithString:nsString(address)];
        if (url == nil || [[url scheme] length] == 0) {
            return false;
        }
        [[NSWorkspace sharedWorkspace] openURL:url];
        return true;
    }
}

void MacWorkspace::relaunch(std::function<void()> completion)
{
    @autoreleasepool {
        NSWorkspaceOpenConfiguration* const configuration = [NSWorkspaceOpenConfiguration configuration];
        [configuration setCreatesNewApplicationInstance:YES];
        auto* const queue = &mainQueue;
        // The system answers on a thread of its own.
        [[NSWorkspace sharedWorkspace] openApplicationAtURL:[[NSBundle mainBundle] bundleURL]
                                              configuration:configuration
                                          completionHandler:^(NSRunningApplication*, NSError*) {
                                            queue->async(completion);
                                          }];
    }
}

void MacWorkspace::terminate()
{
    [NSApp terminate:nil];
}

} // namespace quorvel::macos
