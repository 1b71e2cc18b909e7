#pragma once

#include "platform/StatusBar.h"

namespace quorvel::x11 {

class Connection;
class ToolkitUi;
class X11Bundle;

// Icons in the system tray; their menus are the toolkit's.
class X11StatusBar final : public StatusBar {
public:
    X11StatusBar(Connection& connection, const X11Bundle& bundle, ToolkitUi& toolkit)
        : connection(connection), bundle(bundle), toolkit(toolkit)
    {}

    std::unique_ptr<StatusItem> createItem() override;

private:
    Connection& connection;
    const X11Bundle& bundle;
    ToolkitUi& toolkit;
};

} // namespace quorvel::x11
