#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <gmock/gmock.h>

#include "macos/compat/Pool.h"
#include "macos/fakes/DisplayServer.h"
#include "macos/fakes/FakeDesktop.h"
#include "macos/preferences/Person.h"
#include "platform/macos/Strings.h"
#include "platform/macos/preferences/MacPreferencesUi.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "preferences/PreferencesWindowController.h"

namespace quorvel::macos {

// The window with the panes of the program.
class PreferencesTest : public testing::Test {
protected:
    PreferencesTest() { fakes::startDisplayServer(); }

    void open()
    {
        controller.emplace(platform, nullptr);
        controller->showWindow();
        desktop.drain();
    }

    static NSWindow* window() { return person::window("Preferences"); }

    void chooseTab(NSInteger index)
    {
        [static_cast<NSTabView*>([window() contentView]) selectTabViewItemAtIndex:index];
        desktop.drain();
    }

    template <class View>
    static View* control(std::string_view name)
    {
        return person::find<View>(window(), name);
    }

    void use(NSControl* what)
    {
        ASSERT_NE(what, nil);
        person::use(what);
        desktop.drain();
    }

    void press(std::string_view button) { use(control<NSButton>(button)); }

    SimulatedDesktop desktop;
    fakes::FakeDesktop fake{desktop};
    fakes::Pool pool; // windows in it go before the desktop that they are on
    MacPreferencesUi ui{desktop.mainQueue};
    const Platform platform = [this] {
        auto ports = desktop.platform();
        ports.preferencesUi = &ui;
        return ports;
    }();
    std::optional<PreferencesWindowController> controller;
};

} // namespace quorvel::macos
