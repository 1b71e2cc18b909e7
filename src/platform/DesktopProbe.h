#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Geometry.h"

namespace quorvel {

// A part of the program that is loaded when it is needed first.
struct ModuleState {
    std::string problem; // why it cannot be loaded; empty where it can

    bool operator==(const ModuleState&) const = default;
};

// One monitor, in accessibility coordinates.
struct MonitorFacts {
    std::string name; // as the system calls its connector; may be empty
    AxRect area;
    AxRect workArea; // without what panels keep for themselves

    bool operator==(const MonitorFacts&) const = default;
};

// What window managers may be asked for, and what the program makes of it.
enum class WindowManagerFeature {
    listsWindows,
    tellsActiveWindow,
    placesWindows,
    leavesFullscreen,
    tellsFrames,
    switchesDesktops,
    tellsHidden,
};

struct WindowManagerFacts {
    std::string name; // may be empty
    std::vector<WindowManagerFeature> features;

    bool has(WindowManagerFeature feature) const;
    bool operator==(const WindowManagerFacts&) const = default;
};

struct KeyboardFacts {
    std::vector<std::string> layouts; // as the system calls them, "us" or "de (nodeadkeys)"; may be empty
    std::size_t current = 0;          // which of them is on

    bool operator==(const KeyboardFacts&) const = default;
};

// Everything of a desktop that a person may have to know when the program does not do what it should.
struct DesktopFacts {
    std::string display{}; // its name
    std::vector<MonitorFacts> monitors{};
    std::optional<WindowManagerFacts> windowManager{}; // nothing where none runs
    KeyboardFacts keyboard{};
    bool hasCompositor = false;
    bool hasTray = false;
    bool hasFonts = false;
    bool isProgramRunning = false; // this program, on this display
    ModuleState toolkit{};
};

enum class HotKeyHolder { nobody, runningProgram, anotherProgram, noSuchKey };

// Asks a desktop what it offers. Asking changes nothing, disturbs nobody and leaves nothing behind.
class DesktopProbe {
public:
    DesktopProbe() = default;
    DesktopProbe(const DesktopProbe&) = delete;
    DesktopProbe& operator=(const DesktopProbe&) = delete;
    virtual ~DesktopProbe() = default;

    virtual DesktopFacts facts() = 0;

    // Who has the combination of a key code and a mask of hotKeyModifiers.
    //
    // X11: the server names no holder. A running program of this kind says itself what it holds; everything else is
    // another program.
    virtual HotKeyHolder hotKeyHolder(std::uint32_t keyCode, std::uint32_t modifiers) = 0;

    // Whether another program keeps every key with Command to itself, so that hot keys with it never arrive.
    virtual bool isCommandKeyHeld() = 0;
};

} // namespace quorvel
