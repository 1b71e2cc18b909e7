#include "platform/x11/InstanceClaim.h"

#include <gtest/gtest.h>
#include <sys/socket.h>

#include "platform/x11/Connection.h"
#include "platform/x11/ConnectionSource.h"
#include "support/XClient.h"
#include "x11/windows/AdapterLoop.h"

namespace quorvel::x11 {
namespace {

class InstanceClaimTest : public testing::Test {
protected:
    std::unique_ptr<Connection> connect() { return std::move(*Connection::open(server.display().c_str())); }

    xtest::XServer server;
    xtest::XClient client{server};
    std::unique_ptr<Connection> first = connect();
    std::unique_ptr<Connection> second = connect();
};

TEST_F(InstanceClaimTest, OneProgramAtATimeHasTheDisplay)
{
    auto claim = InstanceClaim::make(*first);
    EXPECT_NE(claim, nullptr);
    EXPECT_EQ(InstanceClaim::make(*second), nullptr);
    claim.reset();
    first->sync();
    EXPECT_NE(InstanceClaim::make(*second), nullptr);
}

TEST_F(InstanceClaimTest, AProgramThatCrashedLeavesNoClaimBehind)
{
    const auto claim = InstanceClaim::make(*first);
    client.watchSelection("_QUORVEL_S0");
    ::shutdown(xcb_get_file_descriptor(first->xcb()), SHUT_RDWR);
    client.waitFor("the claim to go", [&] { return client.selectionOwner("_QUORVEL_S0") == XCB_NONE; });
    EXPECT_NE(InstanceClaim::make(*second), nullptr);
}

TEST_F(InstanceClaimTest, AProgramTakesOverOnceTheOtherHasEnded)
{
    AdapterLoop loop(client);
    const ConnectionSource firstSource(*first);
    const ConnectionSource secondSource(*second);
    auto claim = InstanceClaim::make(*first);
    int asked = 0;
    claim->setLostHandler([&] {
        ++asked;
        loop.mainLoop().async([&] { claim.reset(); });
    });
    EXPECT_NE(InstanceClaim::takeOver(*second, loop.mainLoop()), nullptr);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(claim, nullptr);
}

TEST_F(InstanceClaimTest, WhereNobodyRunsThereIsNothingToWaitFor)
{
    AdapterLoop loop(client);
    EXPECT_NE(InstanceClaim::takeOver(*first, loop.mainLoop()), nullptr);
}

} // namespace
} // namespace quorvel::x11
