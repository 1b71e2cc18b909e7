#pragma once

#include <string>

namespace quorvel::x11 {

class Connection;

// The families to set text in: the desktop's own font for user interfaces, as its settings daemon tells, and fonts of
// the kind that are usually installed. Waits for the server.
std::string desktopFontFamilies(Connection& connection);

} // namespace quorvel::x11
