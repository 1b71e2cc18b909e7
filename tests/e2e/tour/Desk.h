#pragma once

#include <memory>
#include <string>
#include <vector>

#include "support/ClientProcess.h"
#include "support/Compositor.h"
#include "support/StrutPanel.h"
#include "support/TestDisplay.h"

namespace quorvel::tour {

// A furnished desktop: wallpaper, a bar with a tray along the top, and three windows in which somebody is at work.
class Desk {
public:
    Desk();
    Desk(const Desk&) = delete;
    ~Desk();

    Desk& operator=(const Desk&) = delete;

    xtest::TestDisplay display;

    // The monitors in use; the second one is off at first.
    const xtest::PixelRect& firstMonitor() const;
    const xtest::PixelRect& secondMonitor() const;
    xtest::PixelRect bothMonitors() const;
    void switchSecondMonitorOn();

    // Starts a tray in the bar, where programs show their icons.
    void openTray();

    void minimize(xtest::ClientProcess& program);

    // Puts the planner to the right of the letter with room between them, and the terminal below.
    void spreadWindows();

    // Where windows may be on the first monitor.
    xtest::PixelRect workArea() const;

    xtest::ClientProcess& letter() { return *letterProcess; }
    xtest::ClientProcess& terminal() { return *terminalProcess; }
    xtest::ClientProcess& planner() { return *plannerProcess; }

private:
    void writeLook() const;
    void paintWallpaper();
    void openWindows();
    std::unique_ptr<xtest::ClientProcess> open(const std::vector<std::string>& words, const xtest::PixelRect& rect);
    void move(xtest::ClientProcess& program, const xtest::PixelRect& rect);

    std::unique_ptr<xtest::Compositor> compositor;
    std::unique_ptr<xtest::StrutPanel> bar;
    std::unique_ptr<xtest::ChildProcess> tray;
    std::unique_ptr<xtest::ClientProcess> letterProcess;
    std::unique_ptr<xtest::ClientProcess> terminalProcess;
    std::unique_ptr<xtest::ClientProcess> plannerProcess;
};

} // namespace quorvel::tour
