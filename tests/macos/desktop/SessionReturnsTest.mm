#include "platform/macos/desktop/SessionReturns.h"

#include <vector>

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
    std::vector<Subscription> tokens = observeSessionReturns([this] { ++returns; });
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
    tokens.clear();
    post(NSWorkspaceDidWakeNotification);
    post(NSWorkspaceSessionDidBecomeActiveNotification);
    EXPECT_EQ(returns, 0);
}

} // namespace
} // namespace quorvel::macos
