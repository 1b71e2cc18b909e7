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
    bool hasSettings(Permission) const override { return settingsExist; }
    bool openSettings(Permission permission) override;

    void grant(Permission permission) { given.insert(permission); }
    void deny(Permission permission) { given.erase(permission); }
    bool isGiven(Permission permission) const { return given.contains(permission); }

    void loseSettings() { settingsExist = false; }

private:
    Journal& journal;
    std::set<Permission> given{Permission::accessibility, Permission::inputMonitoring};
    bool settingsExist = true;
};

} // namespace quorvel
