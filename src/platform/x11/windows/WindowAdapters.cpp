#include "platform/x11/windows/WindowAdapters.h"

#include <utility>

namespace quorvel::x11 {

WindowAdapters::WindowAdapters(Connection& connection, MainQueue& mainQueue, X11Workspace::Lifecycle lifecycle)
    : precedence(mainQueue),
      rootProperties(connection),
      windowManager(connection, mainQueue, rootProperties),
      barrier(connection, windowManager),
      typingPause(connection, mainQueue, barrier),
      windows(connection, rootProperties),
      activation(connection, windows, windowManager, typingPause, precedence, barrier),
      placements(connection, mainQueue, precedence, windows, windowManager, barrier),
      watcher(connection, mainQueue, windows, placements),
      desktopEntries(DesktopEntries::standardDirectories()),
      screens(connection, mainQueue, rootProperties),
      windowList(windows, placements, screens),
      accessibility(windows, windowManager, activation, placements, watcher, screens),
      workspace(mainQueue, windows, activation, desktopEntries, std::move(lifecycle))
{}

} // namespace quorvel::x11
