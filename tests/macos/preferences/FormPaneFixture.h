#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "macos/compat/Pool.h"
#include "macos/fakes/DisplayServer.h"
#include "macos/fakes/FakeDesktop.h"
#include "macos/preferences/Person.h"
#include "platform/FormModel.h"
#include "platform/macos/preferences/MacPreferencesUi.h"
#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel::macos {

// A form that a test sets, and that remembers what it was sent.
class ScriptedForm final : public FormModel {
public:
    Form form() const override { return content; }
    Subscription observe(std::function<void()> newChanged) override
    {
        changed = std::move(newChanged);
        return Subscription([this] { changed = nullptr; });
    }
    void set(std::string_view id, const ControlValue& value) override { values[std::string(id)] = value; }
    void press(std::string_view id) override { pressed.emplace_back(id); }

    void show(Form newContent)
    {
        content = std::move(newContent);
        changed();
    }

    Form content;
    std::map<std::string, ControlValue> values;
    std::vector<std::string> pressed;

private:
    std::function<void()> changed;
};

class OnePaneWindow final : public PreferencesWindowModel {
public:
    explicit OnePaneWindow(FormModel& form) : form(form) {}
    PreferencesWindowContent content() override
    {
        return {.title = "Pane under test",
                .iconName = "ColorLogoTransparent",
                .size = {1050.0, 785.0},
                .minimumSize = {950.0, 705.0},
                .tabs = {{"Pane", "gearshape", &form}}};
    }
    std::size_t selectedTab() const override { return 0; }
    void selectTab(std::size_t) override {}
    void windowDidBecomeActive() override {}
    void windowWillClose() override {}

private:
    FormModel& form;
};

inline PaneButton buttonNamed(const std::string& id, const std::string& title, ButtonRole role = ButtonRole::normal)
{
    return {id, title, {}, title, role, true};
}

inline FormRow rowOf(const std::string& id, FormControl control)
{
    return {id, "Title of " + id, std::move(control), {}, id, true};
}

inline ColorControl colorControl(const Color& color)
{
    return {.color = color, .text = "A color", .stored = {}};
}

inline Form formOf(std::vector<FormRow> rows)
{
    Form form;
    form.groups.push_back({"Group", std::move(rows)});
    return form;
}

// A window with one pane, which shows a form of the test's.
class FormPaneTest : public testing::Test {
protected:
    FormPaneTest() { fakes::startDisplayServer(); }

    void open(Form form)
    {
        model.content = std::move(form);
        window = ui.createWindow(windowModel);
        window->show();
        desktop.drain();
    }

    void change(Form form)
    {
        model.show(std::move(form));
        desktop.drain();
    }

    static NSWindow* shell() { return person::window("Pane under test"); }

    template <class View>
    static View* control(std::string_view name)
    {
        return person::find<View>(shell(), name);
    }

    SimulatedDesktop desktop;
    fakes::FakeDesktop fake{desktop};
    fakes::Pool pool; // windows in it go before the desktop that they are on
    ScriptedForm model;
    OnePaneWindow windowModel{model};
    MacPreferencesUi ui{desktop.mainQueue};
    std::unique_ptr<PreferencesWindow> window;
};

} // namespace quorvel::macos
