#pragma once

#include <string>
#include <vector>

#include "layouts/MinimizedWindowsListView.h"

namespace quorvel {

class Settings;
class SystemColors;

// A list in the colours of the focus switcher's labels and borders.
MinimizedWindowsListView focusListView(const Settings& settings, const SystemColors& systemColors, std::string title,
                                       std::vector<MinimizedWindowEntry> entries);

} // namespace quorvel
