#include "platform/macos/desktop/SessionReturns.h"

#include <optional>

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include "macos/fakes/FakeDesktop.h"

namespace quorvel::macos {
namespace {

class SessionReturnsTest : public testing::Test {
protected:
    void post(NSString* name)
    {
        NSWorkspace* const workspace = [NSWorkspace sharedWorkspace];
        [[workspace notificationCenter] postNotificationName:name object:workspace];
    }

    SimulatedDesktop desktop;
    fakes::FakeDesktop mac{desktop};
    int returns = 0;
    std::optional<SessionReturns> sessionReturns{std::in_place, [this] { ++returns; }};
};

TEST_F(SessionReturnsTest, AMachineThatWakesUpIsToldOf)
{
    post(NSWorkspaceDidWakeNotification);
    EXPECT_EQ(returns, 1);
}

TEST_F(SessionReturnsTest, AUserWhoComesBackFromAnotherSessionIsToldOf)
{
    post(NSWorkspaceSessionDidBecomeActiveNotification);
    EXPECT_EQ(returns, 1);
}

TEST_F(SessionReturnsTest, NothingIsToldOfAfterItsEnd)
{
    sessionReturns.reset();
    post(NSWorkspaceDidWakeNotification);
    post(NSWorkspaceSessionDidBecomeActiveNotification);
    EXPECT_EQ(returns, 0);
}

} // namespace
} // namespace quorvel::macos
