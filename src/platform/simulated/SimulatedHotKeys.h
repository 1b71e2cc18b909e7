#pragma once

#include <cstddef>
#include <expected>
#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "platform/HotKeys.h"

namespace quorvel {

class Journal;
class SimulatedMainQueue;

class SimulatedHotKeys final : public HotKeys {
public:
    struct Combination {
        std::uint32_t keyCode = 0;
        std::uint32_t modifiers = 0;

        auto operator<=>(const Combination&) const = default;
    };

    // What became of an event that was given to the handler.
    struct Delivery {
        std::expected<HotKeyId, OsStatus> id;
        std::size_t nextHandlerCalls = 0;
        OsStatus result = osStatus::success;
    };

    SimulatedHotKeys(Journal& journal, SimulatedMainQueue& mainQueue) : journal(journal), mainQueue(mainQueue) {}

    OsStatus installHandler(HotKeyHandler handler) override;
    void removeHandler() override;
    HotKeyRegistration registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers, HotKeyId id) override;
    OsStatus unregisterHotKey(HotKeyRef ref) override;

    // The id of the combination if this program holds it.
    std::optional<HotKeyId> idOf(Combination combination) const;
    // In order of registering.
    std::vector<Combination> registered() const;
    bool hasHandler() const { return static_cast<bool>(handler); }
    const std::vector<Delivery>& deliveries() const { return delivered; }

    // Gives the handler an event, now.
    void deliver(std::expected<HotKeyId, OsStatus> id);
    // Gives the handler an event, later: one with an id that was never registered or is no longer, or one whose id
    // cannot be read.
    void send(std::expected<HotKeyId, OsStatus> id);

    // The program has ended: the system takes back what it held.
    void releaseAll() { registrations.clear(); }

    // Another program holds the combination.
    void holdElsewhere(Combination combination) { heldElsewhere.insert(combination); }
    bool isHeldElsewhere(Combination combination) const { return heldElsewhere.contains(combination); }
    void failInstallation(OsStatus status) { installationStatus = status; }
    void failRegistration(OsStatus status) { registrationStatus = status; }
    // Registrations report success and yield no reference.
    void loseReferences() { losesReferences = true; }
    void failUnregistration(HotKeyRef ref, OsStatus status) { unregistrationStatuses.insert_or_assign(ref, status); }
    // Ends all of the above.
    void behave();

private:
    struct Registration {
        Combination combination;
        HotKeyId id;
    };

    Journal& journal;
    SimulatedMainQueue& mainQueue;
    HotKeyHandler handler;
    std::map<HotKeyRef, Registration> registrations;
    std::vector<Delivery> delivered;
    HotKeyRef nextRef = 1;

    std::set<Combination> heldElsewhere;
    std::map<HotKeyRef, OsStatus> unregistrationStatuses;
    OsStatus installationStatus = osStatus::success;
    OsStatus registrationStatus = osStatus::success;
    bool losesReferences = false;
};

} // namespace quorvel
