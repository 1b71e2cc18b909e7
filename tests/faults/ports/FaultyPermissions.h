#pragma once

#include "platform/Permissions.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

class FaultyPermissions final : public Permissions {
public:
    FaultyPermissions(Permissions& real, PortFaults& faults) : real(real), faults(faults) {}

    bool isGranted(Permission permission) const override
    {
        return faults.attempt("Permissions.isGranted", [&] { return real.isGranted(permission); }, false);
    }

    void request(Permission permission) override
    {
        faults.attemptEffect("Permissions.request", [&] { real.request(permission); });
    }

    bool hasSettings(Permission permission) const override
    {
        return faults.attempt("Permissions.hasSettings", [&] { return real.hasSettings(permission); }, false);
    }

    bool openSettings(Permission permission) override
    {
        return faults.attempt("Permissions.openSettings", [&] { return real.openSettings(permission); }, false);
    }

private:
    Permissions& real;
    PortFaults& faults;
};

} // namespace quorvel
