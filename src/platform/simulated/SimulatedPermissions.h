#pragma once

#include <set>

#include "platform/Permissions.h"

namespace quorvel {

class Journal;

// Both permissions are given until they are denied.
class SimulatedPermissions final : public Permissions {
public:
    explicit SimulatedPermissions(Journal& journal) : journal(journal) {}

    bool isGranted(Permission permission) const override;
    void request(Permission permission) override;
    bool openSettings(Permission permission) override;

    void grant(Permission permission) { given.insert(permission); }
    void deny(Permission permission) { given.erase(permission); }
    bool isGiven(Permission permission) const { return given.contains(permission); }

    void loseSettings() { hasSettings = false; }

private:
    Journal& journal;
    std::set<Permission> given{Permission::accessibility, Permission::inputMonitoring};
    bool hasSettings = true;
};

} // namespace quorvel
