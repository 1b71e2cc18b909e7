#include "app/QuorvelApp.h"

#include <utility>

#include "platform/Platform.h"

namespace quorvel {

QuorvelApp::QuorvelApp(const Platform& platform, std::string userGuideAddress)
    : permissionsOnboarding(platform),
      updater(platform.updater),
      eventBlocker(platform),
      controller(platform, &eventBlocker, &updater),
      delegate({.platform = platform,
                .blocker = eventBlocker,
                .mainController = &controller,
                .permissionsOnboarding = permissionsOnboarding,
                .updater = updater,
                .userGuideAddress = std::move(userGuideAddress)})
{}

} // namespace quorvel
