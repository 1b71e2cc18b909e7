#include "preferences/AboutWindowController.h"

#include "platform/Bundle.h"
#include "platform/Platform.h"

namespace quorvel {

AboutContent aboutView(const Bundle& bundle)
{
    return {
        .windowTitle = "About Quorvel",
        .imageName = "ColorLogoTransparent",
        .name = "Quorvel",
        .version = "Version " + bundle.shortVersion(),
    };
}

void AboutWindowController::showWindow()
{
    if (!window && platform.preferencesUi != nullptr) {
        window = platform.preferencesUi->createAboutWindow(aboutView(platform.bundle));
    }
    if (window) {
        window->show();
    }
}

} // namespace quorvel
