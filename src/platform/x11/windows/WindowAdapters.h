#pragma once

#include "platform/x11/Precedence.h"
#include "platform/x11/RootProperties.h"
#include "platform/x11/screens/X11Screens.h"
#include "platform/x11/windows/Activation.h"
#include "platform/x11/windows/ClientWindows.h"
#include "platform/x11/windows/DesktopEntries.h"
#include "platform/x11/windows/Placements.h"
#include "platform/x11/windows/TypingPause.h"
#include "platform/x11/windows/WindowManager.h"
#include "platform/x11/windows/WindowManagerBarrier.h"
#include "platform/x11/windows/WindowWatcher.h"
#include "platform/x11/windows/X11Accessibility.h"
#include "platform/x11/windows/X11WindowList.h"
#include "platform/x11/windows/X11Workspace.h"

namespace quorvel::x11 {

// The adapters for screens, windows and applications, and what they share.
struct WindowAdapters {
    WindowAdapters(Connection& connection, MainQueue& mainQueue, X11Workspace::Lifecycle lifecycle);

    Precedence precedence;
    RootProperties rootProperties;
    WindowManager windowManager;
    WindowManagerBarrier barrier;
    TypingPause typingPause;
    ClientWindows windows;
    Activation activation;
    Placements placements;
    WindowWatcher watcher;
    DesktopEntries desktopEntries;

    X11Screens screens;
    X11WindowList windowList;
    X11Accessibility accessibility;
    X11Workspace workspace;
};

} // namespace quorvel::x11
