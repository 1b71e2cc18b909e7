#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "platform/x11/desktop/ToolkitModule.h"
#include "platform/x11/desktop/X11Alerts.h"
#include "platform/x11/desktop/X11Bundle.h"
#include "platform/x11/desktop/X11Dates.h"
#include "platform/x11/desktop/X11Permissions.h"
#include "platform/x11/desktop/X11StatusBar.h"
#include "platform/x11/desktop/X11SystemColors.h"

namespace quorvel::x11 {

// The adapters for what a program has of its own and of its desktop, and what they share.
struct DesktopAdapters {
    // `displayName` is the one of the connection; empty for that of the environment.
    DesktopAdapters(Connection& connection, std::string displayName)
        : toolkit(ToolkitModule::standardFile(), std::move(displayName)),
          bundle(X11Bundle::standardDirectories()),
          systemColors(X11SystemColors::plasmaSettingsFile()),
          permissions(connection),
          statusBar(connection, bundle, toolkit),
          alerts(bundle, toolkit)
    {}

    ToolkitModule toolkit;

    X11Bundle bundle;
    X11Dates dates;
    X11SystemColors systemColors;
    X11Permissions permissions;
    X11StatusBar statusBar;
    X11Alerts alerts;
};

} // namespace quorvel::x11
