#pragma once

#include "platform/DesktopProbe.h"

namespace quorvel {

class SimulatedHotKeys;
class SimulatedScreens;

// A desktop that has everything until it is told to lack something.
class SimulatedDesktopProbe final : public DesktopProbe {
public:
    explicit SimulatedDesktopProbe(const SimulatedHotKeys& hotKeys);

    DesktopFacts facts() override { return desktop; }
    HotKeyHolder hotKeyHolder(std::uint32_t keyCode, std::uint32_t modifiers) override;
    bool isCommandKeyHeld() override { return commandKeyIsHeld; }

    DesktopFacts desktop;
    bool commandKeyIsHeld = false;

private:
    const SimulatedHotKeys& hotKeys;
};

} // namespace quorvel
