#pragma once

#include "contract/simulated/SimulatedContractDesktop.h"
#include "macos/fakes/FakeDesktop.h"
#include "platform/macos/windows/MacWindowList.h"

namespace quorvel::contract {

// The macOS adapters on the desktop in memory.
class MacContractDesktop final : public SimulatedContractDesktop {
public:
    MacContractDesktop();
    ~MacContractDesktop() override;

    ContractPorts ports() override;
    bool can(Capability capability) const override;
    bool turn() override;
    void settle() override;

private:
    fakes::FakeDesktop fake{desktop};
    macos::MacWindowList windowList;
};

} // namespace quorvel::contract
