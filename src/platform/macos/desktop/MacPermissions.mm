#include "platform/macos/desktop/MacPermissions.h"

#include <string_view>

#include <ApplicationServices/ApplicationServices.h>
#include <IOKit/hidsystem/IOHIDLib.h>

#include "platform/Workspace.h"
#include "platform/macos/CfRef.h"

namespace quorvel::macos {

namespace {

std::string_view settingsAddress(Permission permission)
{
    switch (permission) {
    case Permission::accessibility:
        return "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility";
    case Permission::inputMonitoring:
        break;
    }
    return "x-apple.systempreferences:com.apple.preference.security?Privacy_ListenEvent";
}

void requestAccessibility()
{
    const void* key = kAXTrustedCheckOptionPrompt;
    const void* value = kCFBooleanFalse;
    const auto withoutPrompt = CfRef<CFDictionaryRef>::adopt(CFDictionaryCreate(
        kCFAllocatorDefault, &key, &value, 1, &kCFTypeDictionaryKeyCallBacks, &kCFTypeDictionaryValueCallBacks));
    AXIsProcessTrustedWithOptions(withoutPrompt.get());
}

} // namespace

bool MacPermissions::isGranted(Permission permission) const
{
    switch (permission) {
    case Permission::accessibility:
        return AXIsProcessTrusted() != 0;
    case Permission::inputMonitoring:
        break;
    }
    return IOHIDCheckAccess(kIOHIDRequestTypeListenEvent) == kIOHIDAccessTypeGranted;
}

void MacPermissions::request(Permission permission)
{
    switch (permission) {
    case Permission::accessibility:
        requestAccessibility();
        break;
    case Permission::inputMonitoring:
        IOHIDRequestAccess(kIOHIDRequestTypeListenEvent);
        break;
    }
}

bool MacPermissions::hasSettings(Permission) const
{
    return true;
}

bool MacPermissions::openSettings(Permission permission)
{
    return workspace.open(settingsAddress(permission));
}

} // namespace quorvel::macos
