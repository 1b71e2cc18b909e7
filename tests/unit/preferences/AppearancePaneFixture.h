#pragma once

#include <set>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "settings/SettingsKeys.h"
#include "tests/support/FatalErrors.h"
#include "tests/unit/preferences/FormReading.h"

namespace quorvel {

// A pane on a simulated desktop, and what its user does in it.
template <class Pane>
class AppearancePaneFixture : public testing::Test {
protected:
    void store(std::string_view key, PropertyValue value) { desktop.userDefaults.setObject(key, std::move(value)); }
    void store(std::string_view key, const char* text) { store(key, PropertyValue{std::string(text)}); }

    PropertyValue stored(std::string_view key) const
    {
        const auto found = desktop.userDefaults.contents().find(key);
        return found == desktop.userDefaults.contents().end() ? PropertyValue{std::string("(absent)")} : found->second;
    }

    std::set<std::string> storedKeys() const
    {
        std::set<std::string> keys;
        for (const auto& [key, value] : desktop.userDefaults.contents()) {
            keys.insert(key);
        }
        return keys;
    }

    template <class Control>
    Control control(std::string_view id) const
    {
        return controlOf<Control>(pane.form(), id);
    }

    std::string valueText(std::string_view id) const { return control<SliderControl>(id).valueText; }

    // Presses the button of that title: of the alert if there is one, else of the sheet, else of the pane.
    void press(std::string_view title)
    {
        const auto form = pane.form();
        if (form.alert) {
            pane.press(buttonTitled(form.alert->buttons, title).id);
        } else if (form.sheet) {
            auto buttons = form.sheet->rows.empty() ? std::vector<PaneButton>() : form.sheet->rows[0].buttons;
            buttons.push_back(form.sheet->close);
            pane.press(buttonTitled(buttons, title).id);
        } else {
            pane.press(buttonTitled(form.buttons, title).id);
        }
    }

    void saveTheme(const std::string& name)
    {
        press("Save Current Theme");
        pane.set(pane.form().alert->field->id, name);
        press("Save");
    }

    std::vector<std::string> savedNames()
    {
        press("Manage Themes…");
        const auto sheet = pane.form().sheet.value();
        std::vector<std::string> names;
        names.reserve(sheet.rows.size());
        for (const auto& row : sheet.rows) {
            names.push_back(row.title);
        }
        press("Close");
        return names;
    }

    SimulatedDesktop desktop;
    const Platform platform = desktop.platform();
    Pane pane{platform};
};

} // namespace quorvel
