#include "platform/x11/TrackedProperty.h"

#include "platform/x11/Connection.h"

namespace quorvel::x11 {

TrackedProperty::TrackedProperty(Connection& connection, xcb_atom_t name)
    : connection(connection),
      name(name),
      pending(requestProperty(connection.xcb(), connection.root(), name)),
      changes(connection.addHandler<xcb_property_notify_event_t>(XCB_PROPERTY_NOTIFY, [this](const auto& event) {
          if (event.window == this->connection.root() && event.atom == this->name) {
              pending = requestProperty(this->connection.xcb(), event.window, event.atom);
          }
      }))
{}

const std::vector<std::uint32_t>& TrackedProperty::values()
{
    if (pending.isPending()) {
        known = cardinals(pending.take().get());
    }
    return known;
}

std::uint32_t TrackedProperty::value()
{
    const auto& current = values();
    return current.empty() ? 0U : current.front();
}

} // namespace quorvel::x11
