#include "platform/x11/desktop/X11Permissions.h"

#include <xcb/xinput.h>

#include "platform/x11/Connection.h"

namespace quorvel::x11 {

bool X11Permissions::isGranted(Permission permission) const
{
    switch (permission) {
    case Permission::accessibility:
        return true;
    case Permission::inputMonitoring:
        return connection.extension(&xcb_input_id) != nullptr;
    }
    return false;
}

} // namespace quorvel::x11
