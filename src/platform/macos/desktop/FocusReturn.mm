#include "platform/macos/desktop/FocusReturn.h"

#include <chrono>

#import <AppKit/AppKit.h>

#include "platform/MainQueue.h"
#include "platform/Workspace.h"
#include "platform/macos/NotificationTokens.h"

namespace quorvel::macos {

namespace {

// An alert's button may bring another program forward, which takes some time and must not be crossed.
constexpr std::chrono::duration<double> timeForOthers{1.0};

// Not the frames and letters over other programs' windows, which never have the keyboard.
bool isForThePerson(NSWindow* window)
{
    return ([window styleMask] & NSWindowStyleMaskTitled) != 0;
}

bool hasUseOfTheKeyboard()
{
    if ([NSApp keyWindow] != nil) {
        return true;
    }
    for (NSWindow* each in [NSApp windows]) {
        if ([each isVisible] && isForThePerson(each)) {
            return true;
        }
    }
    return false;
}

} // namespace

FocusReturn::FocusReturn(Workspace& workspace, MainQueue& mainQueue) : workspace(workspace)
{
    if (const auto front = workspace.frontmostApplication()) {
        remember(front->process);
    }
    activations = observeNotification([[NSWorkspace sharedWorkspace] notificationCenter],
                                      NSWorkspaceDidActivateApplicationNotification, [this](NSNotification* each) {
                                          NSRunningApplication* const application =
                                              [[each userInfo] objectForKey:NSWorkspaceApplicationKey];
                                          remember([application processIdentifier]);
                                      });
    closings = observeNotification([NSNotificationCenter defaultCenter], NSWindowWillCloseNotification,
                                   [this, &mainQueue](NSNotification* each) {
                                       if (isForThePerson([each object])) {
                                           mainQueue.async(weakly.guard([this] { giveBack(); }));
                                       }
                                   });
    // An alert does not close.
    keyChanges = observeNotification([NSNotificationCenter defaultCenter], NSWindowDidResignKeyNotification,
                                     [this, &mainQueue](NSNotification* each) {
                                         if (isForThePerson([each object])) {
                                             mainQueue.after(timeForOthers, weakly.guard([this] { giveBack(); }));
                                         }
                                     });
}

void FocusReturn::remember(ProcessId process)
{
    if (process != workspace.ownProcess()) {
        previous = process;
    }
}

void FocusReturn::giveBack() const
{
    const auto front = workspace.frontmostApplication();
    const bool isInFront = front && front->process == workspace.ownProcess();
    if (isInFront && !hasUseOfTheKeyboard() && previous && workspace.runningApplication(*previous)) {
        workspace.activate(*previous);
    }
}

} // namespace quorvel::macos
