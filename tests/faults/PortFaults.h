#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace quorvel {

// Counts the calls of ports while it is armed, and lets one of them fail in one of the ways that the call has.
class PortFaults {
public:
    struct Call {
        std::string name;
        std::size_t ways = 0; // in which it can fail
    };

    // Which call fails, counted from the arming, and in which way.
    struct Fault {
        std::size_t call = 0;
        std::size_t way = 0;
    };

    // Counts from here on; without a fault every call succeeds.
    void arm(std::optional<Fault> newFault = std::nullopt)
    {
        isArmed = true;
        fault = newFault;
        counted.clear();
    }

    void disarm() { isArmed = false; }

    const std::vector<Call>& calls() const { return counted; }

    // A call that reports its failure: the outcome of `call`, or one of the failures.
    template <class Call, class... Failures>
    auto attempt(std::string_view name, Call&& call, Failures&&... failures) -> std::invoke_result_t<Call>
    {
        const auto way = next(name, sizeof...(failures));
        std::optional<std::invoke_result_t<Call>> result;
        std::size_t index = 0;
        ((way == index++ ? static_cast<void>(result.emplace(std::forward<Failures>(failures))) : static_cast<void>(0)),
         ...);
        return result ? *std::move(result) : std::forward<Call>(call)();
    }

    // A call that cannot report anything: one that fails has no effect.
    template <class Call>
    void attemptEffect(std::string_view name, Call&& call)
    {
        if (!next(name, 1)) {
            std::forward<Call>(call)();
        }
    }

    // A call whose failure takes more than a result: in which way it fails, nothing if it does not.
    std::optional<std::size_t> next(std::string_view name, std::size_t ways)
    {
        if (!isArmed) {
            return std::nullopt;
        }
        counted.push_back({std::string(name), ways});
        const bool isMeant = fault && fault->call == counted.size() - 1;
        return isMeant ? std::optional(fault->way) : std::nullopt;
    }

private:
    bool isArmed = false;
    std::optional<Fault> fault;
    std::vector<Call> counted;
};

} // namespace quorvel
