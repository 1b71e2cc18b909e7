#include "contract/ContractTest.h"
#include "contract/SessionVerbs.h"
#include "platform/Updater.h"

namespace quorvel::contract {
namespace {

class UpdaterContract : public ContractTest {
protected:
    Updater& updater = port(&ContractPorts::updater);
    SessionVerbs& session = port(&ContractPorts::session);
};

TEST_F(UpdaterContract, AutomaticChecksAreWhatTheyWereSetTo)
{
    const auto controller = updater.createController();
    for (const bool automatically : {true, false, true}) {
        controller->setAutomaticallyChecksForUpdates(automatically);
        EXPECT_EQ(controller->automaticallyChecksForUpdates(), automatically);
    }
}

TEST_F(UpdaterContract, AutomaticChecksAreKeptForTheNextRun)
{
    for (const bool automatically : {false, true}) {
        updater.createController()->setAutomaticallyChecksForUpdates(automatically);
        EXPECT_EQ(session.reopenedUpdater().createController()->automaticallyChecksForUpdates(), automatically);
    }
}

} // namespace
} // namespace quorvel::contract
