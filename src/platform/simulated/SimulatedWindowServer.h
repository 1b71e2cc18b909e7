#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/simulated/SimulatedApplication.h"
#include "platform/simulated/SimulatedWindow.h"

namespace quorvel {

// The applications and windows of the desktop, their stacking and who has the keyboard.
class SimulatedWindowServer {
public:
    // Hears of each change of a window, with the accessibility notification's name.
    using ChangeListener = std::function<void(const SimulatedWindow&, std::string_view notification)>;

    static constexpr ProcessId ownProcess = 100;

    explicit SimulatedWindowServer(ChangeListener listener) : listener(std::move(listener)) {}

    SimulatedApplication& launch(RunningApplication description);
    void terminate(SimulatedApplication& application);
    void receiveKey(SimulatedApplication& application, const KeyEvent& event);

    // In front of all others and, where `application` is running, with the keyboard.
    SimulatedWindow& openWindow(SimulatedApplication& application, std::string title, const AxRect& frame);
    void close(SimulatedWindow& window);
    void move(SimulatedWindow& window, AxPoint position);
    void resize(SimulatedWindow& window, Size size);
    void minimize(SimulatedWindow& window);
    void restore(SimulatedWindow& window);
    void raise(SimulatedWindow& window);

    // Gives the process the keyboard and brings its front window forward.
    void activate(ProcessId process);
    void leaveNobodyInFront() { frontmost.reset(); }

    // The process with the keyboard; may be this program's own.
    std::optional<ProcessId> frontmostProcess() const { return frontmost; }

    // Among the running ones.
    SimulatedApplication* application(ProcessId process) const;
    // Among the open ones.
    SimulatedWindow* window(std::uint64_t number) const;
    SimulatedWindow* frontWindow(const SimulatedApplication& application) const;
    SimulatedWindow* windowAt(AxPoint point) const;

    // In order of launching.
    std::vector<SimulatedApplication*> runningApplications() const;
    // On screen ones front to back, then minimized ones.
    std::vector<SimulatedWindow*> windows(const SimulatedApplication& application) const;
    // Front to back.
    std::vector<SimulatedWindow*> onScreenWindows() const;

private:
    void bringToFront(SimulatedWindow& window);

    ChangeListener listener;
    std::vector<std::unique_ptr<SimulatedApplication>> applications;
    std::vector<std::unique_ptr<SimulatedWindow>> allWindows; // in order of opening
    std::vector<SimulatedWindow*> stacking;                   // the open ones, front to back
    std::optional<ProcessId> frontmost;
};

} // namespace quorvel
