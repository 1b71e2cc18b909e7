#pragma once

#include <filesystem>
#include <vector>

#include "platform/DesktopProbe.h"
#include "platform/x11/RootProperties.h"
#include "platform/x11/screens/X11Screens.h"
#include "platform/x11/windows/WindowManager.h"

namespace quorvel {
class MainQueue;
}

namespace quorvel::x11 {

class Connection;
class Keyboard;

class X11DesktopProbe final : public DesktopProbe {
public:
    // The toolkit's module is loaded, and nothing of it is called.
    X11DesktopProbe(Connection& connection, const Keyboard& keyboard, MainQueue& mainQueue,
                    std::filesystem::path toolkit);

    DesktopFacts facts() override;
    HotKeyHolder hotKeyHolder(std::uint32_t keyCode, std::uint32_t modifiers) override;
    bool isCommandKeyHeld() override;

private:
    std::optional<WindowManagerFacts> windowManagerFacts();
    std::vector<MonitorFacts> monitorFacts();
    KeyboardFacts keyboardFacts() const;
    bool hasOwner(std::string_view selection);
    std::string nameOf(const Monitor& monitor) const;

    Connection& connection;
    const Keyboard& keyboard;
    std::filesystem::path toolkit;
    RootProperties rootProperties;
    WindowManager windowManager;
    X11Screens screens;
};

} // namespace quorvel::x11
