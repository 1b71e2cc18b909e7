#include <IOKit/hidsystem/IOHIDLib.h>

#include "macos/fakes/FakeDesktop.h"

using namespace quorvel;

namespace {

SimulatedPermissions& permissions()
{
    return fakes::FakeDesktop::current().desktop.permissions;
}

} // namespace

extern "C" {

IOHIDAccessType IOHIDCheckAccess(IOHIDRequestType type)
{
    if (type != kIOHIDRequestTypeListenEvent) {
        return kIOHIDAccessTypeUnknown;
    }
    return permissions().isGranted(Permission::inputMonitoring) ? kIOHIDAccessTypeGranted : kIOHIDAccessTypeDenied;
}

bool IOHIDRequestAccess(IOHIDRequestType)
{
    permissions().request(Permission::inputMonitoring);
    return permissions().isGiven(Permission::inputMonitoring);
}
}
