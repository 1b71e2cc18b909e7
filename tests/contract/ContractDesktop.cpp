#include "contract/ContractDesktop.h"

namespace quorvel::contract {

bool ContractDesktop::waitUntil(const std::function<bool()>& predicate)
{
    while (!predicate()) {
        if (!turn()) {
            return predicate();
        }
    }
    return true;
}

void ContractDesktop::pressKey(KeyCode keyCode, std::uint64_t flags)
{
    holdKey(keyCode, flags);
    releaseKey(keyCode);
}

} // namespace quorvel::contract
