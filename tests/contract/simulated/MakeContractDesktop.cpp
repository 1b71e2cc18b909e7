#include "contract/simulated/SimulatedContractDesktop.h"

namespace quorvel::contract {

std::unique_ptr<ContractDesktop> makeContractDesktop()
{
    return std::make_unique<SimulatedContractDesktop>();
}

} // namespace quorvel::contract
