#pragma once

#include <memory>

#include <gtest/gtest.h>

#include "base/FatalError.h"
#include "contract/ContractDesktop.h"

namespace quorvel::contract {

// A test on a fresh desktop of whichever platform the executable is linked for.
class ContractTest : public testing::Test {
protected:
    // The port, which must be there.
    template <class Port>
    Port& port(Port* ContractPorts::* member)
    {
        auto* const port = desktop->ports().*member;
        if (port == nullptr) {
            fatalError("The desktop under test lacks the port of this suite");
        }
        return *port;
    }

    std::unique_ptr<ContractDesktop> desktop = makeContractDesktop();
};

} // namespace quorvel::contract
