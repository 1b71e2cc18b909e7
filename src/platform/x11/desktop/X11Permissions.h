#pragma once

#include "platform/Permissions.h"

namespace quorvel::x11 {

class Connection;

// An X server asks nobody: whoever may connect may also see and move windows, and hears of input where the server has
// the input extension. Connections that are forwarded as untrusted are the exception; they lack nearly every extension,
// and the program does not start on them.
class X11Permissions final : public Permissions {
public:
    explicit X11Permissions(const Connection& connection) : connection(connection) {}

    bool isGranted(Permission permission) const override;

    // There is no list to enter and no place to open.
    void request(Permission) override {}
    bool hasSettings(Permission) const override { return false; }
    bool openSettings(Permission) override { return false; }

private:
    const Connection& connection;
};

} // namespace quorvel::x11
