#include <algorithm>

#include "contract/ContractTest.h"
#include "platform/Workspace.h"

namespace quorvel::contract {
namespace {

class WorkspaceContract : public ContractTest {
protected:
    bool comesToTheFront(ProcessId process)
    {
        return desktop->waitUntil([&] {
            const auto frontmost = workspace.frontmostApplication();
            return frontmost && frontmost->process == process;
        });
    }

    bool lists(ProcessId process)
    {
        return std::ranges::any_of(workspace.runningApplications(),
                                   [&](const RunningApplication& each) { return each.process == process; });
    }

    Workspace& workspace = port(&ContractPorts::workspace);
};

TEST_F(WorkspaceContract, TheFrontmostApplicationIsTheOneWithTheKeyboard)
{
    const auto editor = desktop->openWindow("Editor", "Notes", {100.0, 120.0, 500.0, 400.0});
    const auto browser = desktop->openWindow("Browser", "News", {300.0, 200.0, 600.0, 300.0});
    EXPECT_TRUE(comesToTheFront(browser.process));

    desktop->focusWindow(editor);

    EXPECT_TRUE(comesToTheFront(editor.process));
}

TEST_F(WorkspaceContract, ARunningApplicationHasItsNameAndIsOrdinary)
{
    const auto editor = desktop->openWindow("Editor", "Notes", {100.0, 120.0, 500.0, 400.0});
    ASSERT_TRUE(desktop->waitUntil([&] { return workspace.runningApplication(editor.process).has_value(); }));

    const auto application = workspace.runningApplication(editor.process);

    EXPECT_EQ(application->process, editor.process);
    EXPECT_EQ(application->localizedName, "Editor");
    EXPECT_EQ(application->activationPolicy, ActivationPolicy::regular);
    EXPECT_TRUE(lists(editor.process));
}

TEST_F(WorkspaceContract, AnApplicationThatHasEndedIsUnknown)
{
    const auto editor = desktop->openWindow("Editor", "Notes", {100.0, 120.0, 500.0, 400.0});
    ASSERT_TRUE(desktop->waitUntil([&] { return workspace.runningApplication(editor.process).has_value(); }));

    desktop->endApplication(editor.process);

    EXPECT_TRUE(desktop->waitUntil([&] { return !workspace.runningApplication(editor.process).has_value(); }));
    EXPECT_FALSE(lists(editor.process));
}

TEST_F(WorkspaceContract, ThisProgramIsOneOfTheRunningApplications)
{
    EXPECT_TRUE(lists(workspace.ownProcess()));
    EXPECT_EQ(workspace.runningApplication(workspace.ownProcess())->process, workspace.ownProcess());
}

TEST_F(WorkspaceContract, AnActivatedApplicationComesForwardAndHasTheKeyboard)
{
    const auto editor = desktop->openWindow("Editor", "Notes", {100.0, 120.0, 500.0, 400.0});
    const auto browser = desktop->openWindow("Browser", "News", {300.0, 200.0, 600.0, 300.0});
    ASSERT_TRUE(comesToTheFront(browser.process));

    workspace.activate(editor.process);

    EXPECT_TRUE(comesToTheFront(editor.process));
    EXPECT_TRUE(desktop->waitUntil([&] { return desktop->isFocused(editor); }));
}

TEST_F(WorkspaceContract, ActivatingAnApplicationThatHasEndedChangesNothing)
{
    const auto editor = desktop->openWindow("Editor", "Notes", {100.0, 120.0, 500.0, 400.0});
    const auto browser = desktop->openWindow("Browser", "News", {300.0, 200.0, 600.0, 300.0});
    desktop->endApplication(editor.process);
    ASSERT_TRUE(comesToTheFront(browser.process));

    workspace.activate(editor.process);
    desktop->settle();

    EXPECT_TRUE(desktop->isFocused(browser));
    EXPECT_TRUE(comesToTheFront(browser.process));
}

TEST_F(WorkspaceContract, AMalformedAddressIsNotOpened)
{
    EXPECT_FALSE(workspace.open(""));
    EXPECT_FALSE(workspace.open("no address"));
}

} // namespace
} // namespace quorvel::contract
