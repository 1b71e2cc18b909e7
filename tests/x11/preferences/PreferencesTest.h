#pragma once

#include <QApplication>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>

#include "platform/x11/settings/PlistUserDefaults.h"
#include "platform/x11/settings/PropertyList.h"
#include "support/Patience.h"
#include "support/SystemTray.h"
#include "support/TemporaryDirectory.h"
#include "support/TestDisplay.h"
#include "x11/preferences/ShellPerson.h"
#include "x11/preferences/ShellSession.h"

namespace quorvel::x11 {

// The program on an Openbox desktop with a tray, and the person in front of its preferences.
class PreferencesTest : public testing::Test {
protected:
    using Modifier = xtest::KeyInjector::Modifier;

    void SetUp() override
    {
        if (!xtest::SystemTray::isInstalled()) {
            GTEST_SKIP() << "needs trayer";
        }
        display.startWindowManager(xtest::WindowManager::openbox);
        tray.emplace(display.server, display.client,
                     xtest::PixelRect{0, 0, display.server.width(), display.server.height()});
    }

    // Runs the program; what the person does begins with the pane of that title in front of her.
    void inPane(const std::string& title, const std::function<void()>& acts)
    {
        session.run([&] {
            person.openPreferences(*tray);
            person.chooseTab(title);
            acts();
        });
    }

    std::filesystem::path settingsFile() const { return configuration.path() / "quorvel/settings.plist"; }

    // As the next run of the program would read it from the file.
    std::optional<PropertyValue> stored(std::string_view key) const
    {
        return PlistUserDefaults(SettingsFile(settingsFile()), [](std::string_view line) { ADD_FAILURE() << line; })
            .object(key);
    }

    // All that the file holds.
    PropertyDictionary allStored() const
    {
        PropertyDictionary settings;
        if (const auto contents = SettingsFile(settingsFile()).read(); contents && *contents) {
            for (const auto& [key, value] : PropertyList::parse((*contents)->bytes).value().entries()) {
                settings[key] = value.value();
            }
        }
        return settings;
    }

    void waitUntilStored(std::string_view key, const PropertyValue& value)
    {
        try {
            session.waitFor(std::string(key), [&] { return stored(key) == value; });
        } catch (const xtest::HarnessError& error) {
            std::ifstream file(settingsFile());
            throw xtest::HarnessError(error.what() + std::string(" in the settings file:\n") +
                                      std::string(std::istreambuf_iterator<char>(file), {}));
        }
    }

    // Another program changes the settings file.
    void changeFromOutside(const PropertyDictionary& settings) const
    {
        PlistUserDefaults defaults(SettingsFile(settingsFile()), [](std::string_view line) { ADD_FAILURE() << line; });
        EXPECT_TRUE(defaults.setObjects(settings));
    }

    void changeFromOutside(const std::string& key, const PropertyValue& value) const
    {
        changeFromOutside({{key, value}});
    }

    static PropertyValue whole(std::int64_t value) { return {value}; }

    static PropertyValue strings(const std::vector<std::string>& texts)
    {
        PropertyArray array;
        for (const auto& text : texts) {
            array.push_back({text});
        }
        return {array};
    }

    xtest::TestDisplay display;
    xtest::TemporaryDirectory configuration;
    std::optional<xtest::SystemTray> tray;
    ShellSession session{display, configuration.path()};
    ShellPerson person{session, display};
};

} // namespace quorvel::x11
