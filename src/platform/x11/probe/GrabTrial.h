#pragma once

#include "platform/x11/keys/KeyGrabs.h"

namespace quorvel::x11 {

class Connection;

// Whether other programs hold some of the combinations. They are taken and given back in one step of the server, so
// that nobody else finds them taken.
bool isAnyHeldByOthers(const Connection& connection, const KeyGrabs::Combinations& combinations);

} // namespace quorvel::x11
