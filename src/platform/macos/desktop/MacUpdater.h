#pragma once

#include <memory>

#include "platform/Updater.h"

namespace quorvel::macos {

// Updates by the update framework, where the bundle comes with it.
class MacUpdater final : public Updater {
public:
    // Null in a bundle without the framework.
    static std::unique_ptr<MacUpdater> make();

    std::unique_ptr<UpdaterController> createController() override;

private:
    MacUpdater() = default;
};

} // namespace quorvel::macos
