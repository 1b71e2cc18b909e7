#include "contract/ContractTest.h"
#include "contract/SessionVerbs.h"
#include "platform/LoginItem.h"

namespace quorvel::contract {
namespace {

class LoginItemContract : public ContractTest {
protected:
    LoginItem& loginItem = port(&ContractPorts::loginItem);
    SessionVerbs& session = port(&ContractPorts::session);
};

TEST_F(LoginItemContract, AFreshSessionDoesNotStartTheProgram)
{
    EXPECT_EQ(loginItem.status(), LoginItemStatus::notRegistered);
}

TEST_F(LoginItemContract, ARegisteredItemIsEnabledOrAwaitsApproval)
{
    ASSERT_TRUE(loginItem.registerItem());
    const auto status = loginItem.status();
    EXPECT_TRUE(status == LoginItemStatus::enabled || status == LoginItemStatus::requiresApproval);
}

TEST_F(LoginItemContract, RegisteringTwiceIsNoError)
{
    ASSERT_TRUE(loginItem.registerItem());
    const auto status = loginItem.status();
    EXPECT_TRUE(loginItem.registerItem());
    EXPECT_EQ(loginItem.status(), status);
}

TEST_F(LoginItemContract, AnItemThatIsNoLongerRegisteredIsGone)
{
    ASSERT_TRUE(loginItem.registerItem());
    ASSERT_TRUE(loginItem.unregisterItem());
    EXPECT_EQ(loginItem.status(), LoginItemStatus::notRegistered);
}

TEST_F(LoginItemContract, WhatTheSessionSaysCounts)
{
    ASSERT_TRUE(loginItem.registerItem());
    session.removeLoginItem();
    EXPECT_NE(loginItem.status(), LoginItemStatus::enabled);

    EXPECT_TRUE(loginItem.registerItem());
    EXPECT_NE(loginItem.status(), LoginItemStatus::notRegistered);
}

} // namespace
} // namespace quorvel::contract
