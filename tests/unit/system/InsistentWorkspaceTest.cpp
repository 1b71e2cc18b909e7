#include "system/InsistentWorkspace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {
namespace {

using testing::IsEmpty;

class InsistentWorkspaceTest : public testing::Test {
protected:
    std::vector<std::string> requests() const { return desktop.journal.entries({"Accessibility.setAttribute"}); }

    SimulatedDesktop desktop;
    SimulatedApplication& mail = desktop.launch("Mail");
    SimulatedApplication& editor = desktop.launch("Editor"); // in front
    InsistentWorkspace workspace{{desktop.workspace, desktop.accessibility, desktop.mainQueue}};
};

TEST_F(InsistentWorkspaceTest, AnActivationThatIsGrantedIsLeftAlone)
{
    workspace.activate(mail.process());
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), mail.process());
    desktop.advance(1.0);

    EXPECT_THAT(requests(), IsEmpty());
}

TEST_F(InsistentWorkspaceTest, AnApplicationWhoseActivationIsRefusedIsAskedThroughAccessibility)
{
    desktop.workspace.refuseActivations();
    workspace.activate(mail.process());
    desktop.drain();
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), editor.process());
    EXPECT_THAT(requests(), IsEmpty()) << "it may still come";

    desktop.advance(1.0);
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), mail.process());
    EXPECT_EQ(requests().size(), 1U);
}

TEST_F(InsistentWorkspaceTest, WhomTheUserBringsToTheFrontMeanwhileStaysThere)
{
    desktop.workspace.refuseActivations();
    workspace.activate(mail.process());
    const auto& player = desktop.launch("Player");
    desktop.advance(1.0);

    EXPECT_EQ(desktop.windowServer.frontmostProcess(), player.process());
}

TEST_F(InsistentWorkspaceTest, OnlyTheLastRequestCounts)
{
    const auto& player = desktop.launch("Player");
    desktop.activate(editor);
    desktop.workspace.refuseActivations();
    workspace.activate(mail.process());
    workspace.activate(player.process());
    desktop.advance(1.0);
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), player.process());
    EXPECT_EQ(requests().size(), 1U);

    workspace.activate(mail.process());
    workspace.activateSelf();
    desktop.advance(1.0);
    EXPECT_EQ(requests().size(), 1U);
}

TEST_F(InsistentWorkspaceTest, ATerminatedApplicationIsNotAskedFor)
{
    desktop.workspace.refuseActivations();
    workspace.activate(mail.process());
    desktop.terminate(mail);
    desktop.advance(1.0);

    EXPECT_THAT(requests(), IsEmpty());
}

TEST_F(InsistentWorkspaceTest, NothingIsDoneAfterItsEnd)
{
    desktop.workspace.refuseActivations();
    {
        InsistentWorkspace shortLived{{desktop.workspace, desktop.accessibility, desktop.mainQueue}};
        shortLived.activate(mail.process());
    }
    desktop.advance(1.0);

    EXPECT_THAT(requests(), IsEmpty());
}

TEST_F(InsistentWorkspaceTest, EverythingElseIsPassedThrough)
{
    EXPECT_EQ(workspace.ownProcess(), desktop.workspace.ownProcess());
    EXPECT_EQ(workspace.frontmostApplication(), desktop.workspace.frontmostApplication());
    EXPECT_EQ(workspace.runningApplication(mail.process()), desktop.workspace.runningApplication(mail.process()));
    EXPECT_EQ(workspace.runningApplications(), desktop.workspace.runningApplications());
    EXPECT_TRUE(workspace.open("https://example.org"));
    bool isRelaunched = false;
    workspace.relaunch([&] { isRelaunched = true; });
    workspace.terminate();
    desktop.drain();

    EXPECT_TRUE(isRelaunched);
    EXPECT_EQ(desktop.workspace.terminationRequests(), 1U);
    EXPECT_EQ(desktop.journal.count("Workspace.open(https://example.org)"), 1U);
}

} // namespace
} // namespace quorvel
