#include "platform/simulated/SimulatedPermissions.h"

#include <string_view>

#include "platform/simulated/Journal.h"

namespace quorvel {

namespace {

std::string_view nameOf(Permission permission)
{
    return permission == Permission::accessibility ? "accessibility" : "inputMonitoring";
}

} // namespace

bool SimulatedPermissions::isGranted(Permission permission) const
{
    journal.record("Permissions.isGranted({})", nameOf(permission));
    return isGiven(permission);
}

void SimulatedPermissions::request(Permission permission)
{
    journal.record("Permissions.request({})", nameOf(permission));
}

bool SimulatedPermissions::openSettings(Permission permission)
{
    journal.record("Permissions.openSettings({})", nameOf(permission));
    return settingsExist;
}

} // namespace quorvel
