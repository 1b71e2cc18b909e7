#pragma once

#include "platform/Permissions.h"

namespace quorvel {
class Workspace;
}

namespace quorvel::macos {

class MacPermissions final : public Permissions {
public:
    explicit MacPermissions(Workspace& workspace) : workspace(workspace) {}

    bool isGranted(Permission permission) const override;
    void request(Permission permission) override;
    bool hasSettings(Permission permission) const override;
    bool openSettings(Permission permission) override;

private:
    Workspace& workspace;
};

} // namespace quorvel::macos
