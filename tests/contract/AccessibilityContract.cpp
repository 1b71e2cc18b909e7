#include <algorithm>
#include <string>
#include <vector>

#include "contract/AccessibilityTest.h"
#include "platform/Workspace.h"

namespace quorvel::contract {
namespace {

class AccessibilityContract : public AccessibilityTest {
protected:
    // Waits until the element answers an error for its position.
    bool vanishes(const AxElementRef& element)
    {
        return desktop->waitUntil([&] { return !read(element, axNames::position).has_value(); });
    }

    // Those of the process's windows, in the order in which they are listed.
    std::vector<std::string> titlesOf(ProcessId process)
    {
        std::vector<std::string> result;
        const auto windows = read(accessibility.applicationElement(process), axNames::windows);
        for (const auto& each : std::get<std::vector<AxElementRef>>(windows.value())) {
            result.push_back(std::get<std::string>(read(each, axNames::title).value_or(AxValue(std::string()))));
        }
        return result;
    }
};

TEST_F(AccessibilityContract, AWindowTellsItsRoleTitlePositionAndSize)
{
    const auto element = elementOf(desktop->openWindow("Editor", "Notes — é", somewhere));

    EXPECT_EQ(read(element, axNames::role), AxValue(std::string("AXWindow")));
    EXPECT_EQ(read(element, axNames::title), AxValue(std::string("Notes — é")));
    EXPECT_EQ(read(element, axNames::position), AxValue(somewhere.origin()));
    EXPECT_EQ(read(element, axNames::size), AxValue(somewhere.size()));
    EXPECT_EQ(read(element, axNames::minimized), AxValue(false));
}

TEST_F(AccessibilityContract, AnApplicationListsAllItsWindowsAndNoOthers)
{
    const auto notes = desktop->openWindow("Editor", "Notes", somewhere);
    desktop->openWindow("Browser", "News", {50.0, 50.0, 300.0, 300.0});
    desktop->openWindow("Editor", "Letter", {200.0, 200.0, 450.0, 350.0});

    EXPECT_TRUE(desktop->waitUntil([&] {
        auto titles = titlesOf(notes.process);
        std::ranges::sort(titles);
        return titles == std::vector<std::string>{"Letter", "Notes"};
    }));
}

TEST_F(AccessibilityContract, MinimizedWindowsStayInTheListOfTheirApplication)
{
    const auto window = desktop->openWindow("Editor", "Notes", somewhere);
    const auto element = elementOf(window);
    desktop->minimizeWindow(window);
    ASSERT_TRUE(desktop->waitUntil([&] { return read(element, axNames::minimized) == AxValue(true); }));

    const auto windows = read(accessibility.applicationElement(window.process), axNames::windows);

    ASSERT_TRUE(windows.has_value());
    ASSERT_EQ(std::get<std::vector<AxElementRef>>(*windows).size(), 1U);
    EXPECT_TRUE(std::get<std::vector<AxElementRef>>(*windows)[0]->isEqual(*element));
}

TEST_F(AccessibilityContract, WindowsOnScreenAreListedFrontToBackAndMinimizedOnesAfterThem)
{
    const auto back = desktop->openWindow("Editor", "Back", somewhere);
    desktop->openWindow("Editor", "Front", somewhere);
    const auto minimized = desktop->openWindow("Editor", "Minimized", somewhere);
    const auto element = elementOf(minimized);
    desktop->minimizeWindow(minimized);
    ASSERT_TRUE(desktop->waitUntil([&] { return read(element, axNames::minimized) == AxValue(true); }));

    EXPECT_TRUE(desktop->waitUntil(
        [&] { return titlesOf(back.process) == std::vector<std::string>{"Front", "Back", "Minimized"}; }));
    desktop->focusWindow(back);
    EXPECT_TRUE(desktop->waitUntil(
        [&] { return titlesOf(back.process) == std::vector<std::string>{"Back", "Front", "Minimized"}; }));
}

TEST_F(AccessibilityContract, TwoNamesOfOneWindowAreEqualAndThoseOfTwoWindowsAreNot)
{
    const auto notes = desktop->openWindow("Editor", "Notes", somewhere);
    const auto element = elementOf(notes);
    const auto again = elementOf(notes);
    const auto other = elementOf(desktop->openWindow("Browser", "News", {50.0, 50.0, 300.0, 300.0}));
    const auto application = accessibility.applicationElement(notes.process);

    EXPECT_TRUE(element->isEqual(*again));
    EXPECT_FALSE(element->isEqual(*other));
    EXPECT_FALSE(element->isEqual(*application));
    EXPECT_TRUE(application->isEqual(*accessibility.applicationElement(notes.process)));
}

TEST_F(AccessibilityContract, AnElementTellsItsProcess)
{
    const auto window = desktop->openWindow("Editor", "Notes", somewhere);

    EXPECT_EQ(accessibility.processId(elementOf(window)), window.process);
    EXPECT_EQ(accessibility.processId(accessibility.applicationElement(window.process)), window.process);
}

TEST_F(AccessibilityContract, AnUnknownAttributeIsUnsupported)
{
    const auto element = elementOf(desktop->openWindow("Editor", "Notes", somewhere));

    EXPECT_EQ(read(element, "AXNonsense"), std::unexpected(axErrors::attributeUnsupported));
    EXPECT_EQ(accessibility.setAttribute(element, "AXNonsense", true), std::unexpected(axErrors::attributeUnsupported));
    EXPECT_EQ(accessibility.performAction(element, "AXNonsense"), std::unexpected(axErrors::actionUnsupported));
}

TEST_F(AccessibilityContract, AValueOfAnotherTypeIsRefusedAndChangesNothing)
{
    const auto element = elementOf(desktop->openWindow("Editor", "Notes", somewhere));

    EXPECT_EQ(accessibility.setAttribute(element, axNames::position, Size{10.0, 10.0}),
              std::unexpected(axErrors::illegalArgument));
    EXPECT_EQ(accessibility.setAttribute(element, axNames::size, AxPoint{10.0, 10.0}),
              std::unexpected(axErrors::illegalArgument));
    EXPECT_EQ(accessibility.setAttribute(element, axNames::minimized, std::string("yes")),
              std::unexpected(axErrors::illegalArgument));
    desktop->settle();

    EXPECT_EQ(frameOf(element), somewhere);
    EXPECT_EQ(read(element, axNames::minimized), AxValue(false));
}

TEST_F(AccessibilityContract, AWindowMovesExactlyWhereItIsTold)
{
    const auto window = desktop->openWindow("Editor", "Notes", somewhere);
    const auto element = elementOf(window);

    ASSERT_TRUE(accessibility.setAttribute(element, axNames::position, AxPoint{333.0, 77.0}).has_value());

    const AxRect expected{333.0, 77.0, 500.0, 400.0};
    EXPECT_TRUE(desktop->waitUntil([&] { return desktop->frameOf(window) == expected; }));
    EXPECT_TRUE(desktop->waitUntil([&] { return frameOf(element) == expected; }));
}

TEST_F(AccessibilityContract, AWindowIsExactlyAsLargeAsItIsTold)
{
    const auto window = desktop->openWindow("Editor", "Notes", somewhere);
    const auto element = elementOf(window);

    ASSERT_TRUE(accessibility.setAttribute(element, axNames::size, Size{641.0, 333.0}).has_value());

    const AxRect expected{100.0, 120.0, 641.0, 333.0};
    EXPECT_TRUE(desktop->waitUntil([&] { return desktop->frameOf(window) == expected; }));
    EXPECT_TRUE(desktop->waitUntil([&] { return frameOf(element) == expected; }));
}

TEST_F(AccessibilityContract, PositionAndSizeWrittenTogetherBothHold)
{
    const auto window = desktop->openWindow("Editor", "Notes", somewhere);
    const auto element = elementOf(window);
    const AxRect expected{0.0, 0.0, 640.0, 800.0};

    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(accessibility.setAttribute(element, axNames::position, expected.origin()).has_value());
        ASSERT_TRUE(accessibility.setAttribute(element, axNames::size, expected.size()).has_value());
    }

    EXPECT_TRUE(desktop->waitUntil([&] { return desktop->frameOf(window) == expected; }));
    EXPECT_TRUE(desktop->waitUntil([&] { return frameOf(element) == expected; }));
}

TEST_F(AccessibilityContract, AWindowMovedByItsUserIsReadWhereItIs)
{
    const auto window = desktop->openWindow("Editor", "Notes", somewhere);
    const auto element = elementOf(window);

    desktop->moveWindow(window, {40.0, 60.0, 450.0, 350.0});

    EXPECT_TRUE(desktop->waitUntil([&] { return frameOf(element) == AxRect{40.0, 60.0, 450.0, 350.0}; }));
}

TEST_F(AccessibilityContract, AWindowIsMinimizedAndRestored)
{
    const auto window = desktop->openWindow("Editor", "Notes", somewhere);
    const auto element = elementOf(window);

    ASSERT_TRUE(accessibility.setAttribute(element, axNames::minimized, true).has_value());
    EXPECT_TRUE(desktop->waitUntil([&] { return desktop->isMinimized(window); }));
    EXPECT_TRUE(desktop->waitUntil([&] { return read(element, axNames::minimized) == AxValue(true); }));

    ASSERT_TRUE(accessibility.setAttribute(element, axNames::minimized, false).has_value());
    EXPECT_TRUE(desktop->waitUntil([&] { return !desktop->isMinimized(window); }));
    EXPECT_TRUE(desktop->waitUntil([&] { return read(element, axNames::minimized) == AxValue(false); }));
    EXPECT_EQ(frameOf(element), somewhere);
}

TEST_F(AccessibilityContract, ARaisedWindowBecomesTheFocusedOneOfItsApplicationOnceThatIsActivated)
{
    const auto notes = desktop->openWindow("Editor", "Notes", somewhere);
    const auto element = elementOf(notes);
    const auto letter = desktop->openWindow("Editor", "Letter", {200.0, 200.0, 450.0, 350.0});
    ASSERT_FALSE(elementOf(letter)->isEqual(*element));

    ASSERT_TRUE(accessibility.performAction(element, axNames::raise).has_value());
    port(&ContractPorts::workspace).activate(notes.process);

    EXPECT_TRUE(desktop->waitUntil([&] { return desktop->isFocused(notes); }));
    EXPECT_TRUE(elementOf(notes)->isEqual(*element));
}

TEST_F(AccessibilityContract, AClosedWindowIsAnInvalidElement)
{
    const auto window = desktop->openWindow("Editor", "Notes", somewhere);
    const auto element = elementOf(window);

    desktop->closeWindow(window);
    ASSERT_TRUE(vanishes(element));

    EXPECT_EQ(read(element, axNames::position), std::unexpected(axErrors::invalidElement));
    EXPECT_EQ(read(element, axNames::title), std::unexpected(axErrors::invalidElement));
    EXPECT_EQ(accessibility.setAttribute(element, axNames::position, AxPoint{1.0, 1.0}),
              std::unexpected(axErrors::invalidElement));
    EXPECT_EQ(accessibility.setAttribute(element, axNames::size, Size{300.0, 300.0}),
              std::unexpected(axErrors::invalidElement));
    EXPECT_EQ(accessibility.performAction(element, axNames::raise), std::unexpected(axErrors::invalidElement));
}

TEST_F(AccessibilityContract, TheWindowsOfAnEndedApplicationAreInvalidElements)
{
    const auto window = desktop->openWindow("Editor", "Notes", somewhere);
    const auto element = elementOf(window);

    desktop->endApplication(window.process);

    ASSERT_TRUE(vanishes(element));
    EXPECT_EQ(read(element, axNames::size), std::unexpected(axErrors::invalidElement));
    EXPECT_EQ(readElement(accessibility.applicationElement(window.process), axNames::focusedWindow), nullptr);
}

TEST_F(AccessibilityContract, NoElementIsAnIllegalArgument)
{
    EXPECT_EQ(read(nullptr, axNames::position), std::unexpected(axErrors::illegalArgument));
}

TEST_F(AccessibilityContract, WithoutThePermissionNothingCanBeReadOrWritten)
{
    if (!desktop->can(Capability::denyPermissions)) {
        GTEST_SKIP() << "This platform knows no such permission.";
    }
    const auto element = elementOf(desktop->openWindow("Editor", "Notes", somewhere));

    desktop->deny(Permission::accessibility);

    EXPECT_EQ(read(element, axNames::position), std::unexpected(axErrors::apiDisabled));
    EXPECT_EQ(accessibility.setAttribute(element, axNames::position, AxPoint{1.0, 1.0}),
              std::unexpected(axErrors::apiDisabled));
}

} // namespace
} // namespace quorvel::contract
