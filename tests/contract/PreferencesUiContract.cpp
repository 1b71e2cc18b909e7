#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "contract/ContractTest.h"
#include "contract/SessionVerbs.h"
#include "platform/FormModel.h"
#include "platform/PreferencesUi.h"

namespace quorvel::contract {
namespace {

using Lines = std::vector<std::string>;

// A form with a control of every kind.
class EveryControlModel final : public FormModel {
public:
    Form form() const override
    {
        const PaneButton button{"button", "Button", {}, "Button", ButtonRole::normal, true};
        const FormControl controls[] = {
            ColorControl{},
            SliderControl{0.5, 0.0, 1.0, 0.5, "0"},
            StepperControl{1, 1, 50, "1"},
            ToggleControl{true},
            PickerControl{{"One", "Two"}, 0U},
            PickerControl{{"One", "Two"}, std::nullopt},
            ButtonControl{button},
            ShortcutControl{"⌘O", "Super+O", false, button, button},
            StatusControl{"checkmark.circle.fill", "Granted", StatusTone::positive, button},
            PreviewControl{{100.0, 50.0}, {}, "A picture"},
        };
        FormGroup group{"Group", {}};
        for (const auto& control : controls) {
            const auto id = "row" + std::to_string(group.rows.size());
            group.rows.push_back({id, "Title", control, "Help", id, true});
        }
        return {"Note", {group}, "Footnote", {button}, std::nullopt, std::nullopt};
    }

    Subscription observe(std::function<void()>) override { return {}; }
    void set(std::string_view, const ControlValue&) override { FAIL() << "Nobody has touched a control"; }
    void press(std::string_view) override { FAIL() << "Nobody has pressed a button"; }
};

class HeardWindowModel final : public PreferencesWindowModel {
public:
    PreferencesWindowContent content() override
    {
        return {.title = "Settings under test",
                .iconName = "ColorLogoTransparent",
                .size = {700.0, 500.0},
                .minimumSize = {600.0, 400.0},
                .tabs = {{"First", "gearshape", &form}, {"Second", "keyboard", &form}}};
    }
    std::size_t selectedTab() const override { return 0; }
    void selectTab(std::size_t) override { heard.emplace_back("tab"); }
    void windowDidBecomeActive() override { heard.emplace_back("active"); }
    void windowWillClose() override { heard.emplace_back("closing"); }

    EveryControlModel form;
    Lines heard;
};

class PreferencesUiContract : public ContractTest {
protected:
    static constexpr auto title = "Settings under test";

    bool isTold(const Lines& lines)
    {
        return desktop->waitUntil([&] { return model.heard == lines; });
    }

    PreferencesUi& preferencesUi = port(&ContractPorts::preferencesUi);
    NotificationCenter& notificationCenter = port(&ContractPorts::notificationCenter);
    SessionVerbs& session = port(&ContractPorts::session);
    HeardWindowModel model;
};

TEST_F(PreferencesUiContract, ANewWindowIsNotShown)
{
    const auto window = preferencesUi.createWindow(model);
    ASSERT_TRUE(window);
    desktop->settle();
    EXPECT_FALSE(session.isShown(title));
    EXPECT_TRUE(model.heard.empty());
}

TEST_F(PreferencesUiContract, AShownWindowIsAsLargeAsItsModelSaysAndActive)
{
    const auto window = preferencesUi.createWindow(model);
    window->show();
    EXPECT_TRUE(model.heard.empty()) << "News comes up later";
    EXPECT_TRUE(desktop->waitUntil([&] { return session.isShown(title); }));
    EXPECT_TRUE(isTold({"active"}));
    EXPECT_EQ(session.contentSize(title), (Size{700.0, 500.0}));
}

TEST_F(PreferencesUiContract, AWindowIsNeverSmallerThanItsModelAllows)
{
    const auto window = preferencesUi.createWindow(model);
    window->show();
    ASSERT_TRUE(isTold({"active"}));
    session.resize(title, {500.0, 300.0});
    EXPECT_TRUE(desktop->waitUntil([&] { return session.contentSize(title) == Size{600.0, 400.0}; }));
}

TEST_F(PreferencesUiContract, AClosingWindowIsAnnouncedAndToldToItsModelOnce)
{
    const auto window = preferencesUi.createWindow(model);
    int announcements = 0;
    const auto observation = notificationCenter.observe(notificationNames::windowWillClose,
                                                        window->notificationObject(), [&] { ++announcements; });
    window->show();
    ASSERT_TRUE(isTold({"active"}));
    session.closeShellWindow(title);
    EXPECT_TRUE(isTold({"active", "closing"}));
    EXPECT_TRUE(desktop->waitUntil([&] { return announcements == 1; }));
    desktop->settle();
    EXPECT_FALSE(session.isShown(title));
    EXPECT_EQ(announcements, 1);
    EXPECT_EQ(model.heard, (Lines{"active", "closing"}));
}

TEST_F(PreferencesUiContract, AClosedWindowCanBeShownAgain)
{
    const auto window = preferencesUi.createWindow(model);
    const auto object = window->notificationObject();
    window->show();
    ASSERT_TRUE(isTold({"active"}));
    session.closeShellWindow(title);
    ASSERT_TRUE(isTold({"active", "closing"}));
    window->show();
    EXPECT_TRUE(isTold({"active", "closing", "active"}));
    EXPECT_TRUE(session.isShown(title));
    EXPECT_EQ(window->notificationObject(), object);
}

TEST_F(PreferencesUiContract, ADestroyedWindowCloses)
{
    auto window = preferencesUi.createWindow(model);
    window->show();
    ASSERT_TRUE(isTold({"active"}));
    window.reset();
    desktop->settle();
    EXPECT_FALSE(session.isShown(title));
    EXPECT_EQ(model.heard, (Lines{"active", "closing"}));
}

TEST_F(PreferencesUiContract, AWindowThatWasNeverShownGoesInSilence)
{
    auto window = preferencesUi.createWindow(model);
    window.reset();
    desktop->settle();
    EXPECT_TRUE(model.heard.empty());
}

TEST_F(PreferencesUiContract, AWindowThatComesBackToTheFrontIsActiveAgain)
{
    const auto window = preferencesUi.createWindow(model);
    window->show();
    ASSERT_TRUE(isTold({"active"}));
    desktop->openWindow("Editor", "Notes", {50.0, 50.0, 300.0, 200.0});
    desktop->settle();
    session.focusShellWindow(title);
    EXPECT_TRUE(isTold({"active", "active"}));
}

TEST_F(PreferencesUiContract, AnAboutWindowCanBeClosedAndShownAgain)
{
    const auto window =
        preferencesUi.createAboutWindow({"About the test", "ColorLogoTransparent", "Quorvel", "Version 1.0"});
    ASSERT_TRUE(window);
    desktop->settle();
    EXPECT_FALSE(session.isShown("About the test"));
    for (int round = 0; round < 2; ++round) {
        window->show();
        EXPECT_TRUE(desktop->waitUntil([&] { return session.isShown("About the test"); }));
        session.closeShellWindow("About the test");
        EXPECT_TRUE(desktop->waitUntil([&] { return !session.isShown("About the test"); }));
    }
}

} // namespace
} // namespace quorvel::contract
