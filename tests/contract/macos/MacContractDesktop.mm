#include "contract/macos/MacContractDesktop.h"

#import <Foundation/Foundation.h>

#include "macos/fakes/DisplayServer.h"
#include "macos/fakes/StatusItems.h"
#include "support/CapturedOutput.h"

namespace quorvel::contract {

namespace {

// Serves what waits in the run loop, and waits for nothing.
void serveRunLoop()
{
    @autoreleasepool {
        [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode beforeDate:[NSDate distantPast]];
    }
}

} // namespace

MacContractDesktop::MacContractDesktop()
{
    fakes::startDisplayServer();
}

MacContractDesktop::~MacContractDesktop() = default;

ContractPorts MacContractDesktop::ports()
{
    return {.log = &log,
            .mainQueue = &mainQueue,
            .userDefaults = &userDefaults,
            .notificationCenter = &notificationCenter,
            .bundle = &bundle,
            .dates = &dates,
            .accessibility = &accessibility,
            .hotKeys = &hotKeys,
            .eventTaps = &eventTaps,
            .windowList = &windowList,
            .workspace = &workspace,
            .screens = &screens,
            .keyboardLayout = &keyboardLayout,
            .eventMonitors = &eventMonitors,
            .overlayWindows = &overlayWindows,
            .textMetrics = &textMetrics,
            .systemColors = &systemColors,
            .statusBar = &statusBar,
            .permissions = &permissions,
            .alerts = &alerts,
            .preferencesUi = &preferencesUi,
            .loginItem = &loginItem,
            .updater = updater.get(),
            .session = &session};
}

bool MacContractDesktop::can(Capability capability) const
{
    switch (capability) {
    case Capability::denyPermissions:
    case Capability::showStatusItems:
        return true;
    case Capability::keepKeysOfATap:
        return false;
    }
    return false;
}

bool MacContractDesktop::turn()
{
    serveRunLoop();
    return SimulatedContractDesktop::turn();
}

void MacContractDesktop::settle()
{
    serveRunLoop();
    SimulatedContractDesktop::settle();
    serveRunLoop();
}

bool MacContractDesktop::chooseFromStatusMenu(std::string_view title)
{
    return fakes::chooseFromStatusMenu(title);
}

void MacContractDesktop::addResource(std::string_view name, std::string_view extension, std::string_view content)
{
    bundleFolder.addResource(name, extension, content);
}

void MacContractDesktop::addUnreadableResource(std::string_view name, std::string_view extension)
{
    bundleFolder.addUnreadableResource(name, extension);
}

UserDefaults& MacContractDesktop::reopenedUserDefaults()
{
    reopened = std::make_unique<macos::MacUserDefaults>(mainQueue);
    return *reopened;
}

std::vector<std::string> MacContractDesktop::logged(const std::function<void()>& work)
{
    xtest::CapturedOutput output;
    work();
    return output.pieces();
}

std::unique_ptr<ContractDesktop> makeContractDesktop()
{
    return std::make_unique<MacContractDesktop>();
}

} // namespace quorvel::contract
