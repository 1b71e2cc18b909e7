#include "platform/x11/RootProperties.h"

#include "platform/x11/Connection.h"

namespace quorvel::x11 {

RootProperties::RootProperties(Connection& connection)
    : selection(connection.selectEvents(connection.root(), XCB_EVENT_MASK_PROPERTY_CHANGE)),
      activeWindow(connection, connection.atoms().netActiveWindow),
      clientList(connection, connection.atoms().netClientList),
      clientListStacking(connection, connection.atoms().netClientListStacking),
      currentDesktop(connection, connection.atoms().netCurrentDesktop),
      supported(connection, connection.atoms().netSupported),
      supportingWmCheck(connection, connection.atoms().netSupportingWmCheck),
      workarea(connection, connection.atoms().netWorkarea)
{}

} // namespace quorvel::x11
