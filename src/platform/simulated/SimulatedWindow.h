#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "base/Geometry.h"
#include "platform/WindowList.h"
#include "platform/simulated/SimulatedApplication.h"

namespace quorvel {

// A window of a simulated application. It outlives its closing, as a record of what it was.
class SimulatedWindow final : public SimulatedElement {
public:
    SimulatedWindow(std::uint64_t number, SimulatedApplication& application, std::string title, const AxRect& frame)
        : number(number), application(application), title(std::move(title)), rect(frame)
    {}

    std::string reference() const override { return "window " + std::to_string(number); }
    ProcessId process() const override { return application.process(); }

    AxRect frame() const { return rect; }
    bool isOpen() const { return open; }
    bool isMinimized() const { return minimized; }
    bool isOnScreen() const { return open && !minimized; }

    // Makes the window keep to these sizes, whatever is asked of it.
    void limitSize(Size smallest, Size largest) { sizeLimits = {smallest, largest}; }

    // Replaces the window's entry in the window list.
    void listAs(const WindowListEntry& entry) { listEntry = entry; }
    WindowListEntry listing() const { return listEntry.value_or(WindowListEntry{process(), layer, rect}); }

    const std::uint64_t number;
    SimulatedApplication& application;
    std::string title;
    std::string role{axNames::windowRole};
    int layer = 0;

private:
    friend class SimulatedWindowServer;

    AxRect rect;
    bool open = true;
    bool minimized = false;
    std::optional<std::pair<Size, Size>> sizeLimits;
    std::optional<WindowListEntry> listEntry;
};

} // namespace quorvel
