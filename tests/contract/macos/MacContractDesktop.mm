#include "contract/macos/MacContractDesktop.h"

#import <Foundation/Foundation.h>

namespace quorvel::contract {

namespace {

// Serves what waits in the run loop, and waits for nothing.
void serveRunLoop()
{
    @autoreleasepool {
        [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode beforeDate:[NSDate distantPast]];
    }
}

} // namespace

MacContractDesktop::MacContractDesktop() = default;

MacContractDesktop::~MacContractDesktop() = default;

ContractPorts MacContractDesktop::ports()
{
    return {.windowList = &windowList};
}

bool MacContractDesktop::can(Capability capability) const
{
    switch (capability) {
    case Capability::denyPermissions:
    case Capability::showStatusItems:
        return true;
    case Capability::keepKeysOfATap:
        return false;
    }
    return false;
}

bool MacContractDesktop::turn()
{
    serveRunLoop();
    return SimulatedContractDesktop::turn();
}

void MacContractDesktop::settle()
{
    serveRunLoop();
    SimulatedContractDesktop::settle();
    serveRunLoop();
}

std::unique_ptr<ContractDesktop> makeContractDesktop()
{
    return std::make_unique<MacContractDesktop>();
}

} // namespace quorvel::contract
