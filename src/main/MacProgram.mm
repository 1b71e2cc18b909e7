#include "main/MacProgram.h"

#include "settings/ForeignChanges.h"

namespace quorvel {

MacProgram::MacProgram(NSBundle* resources)
    : bundle(resources),
      statusBar(resources),
      alerts(resources),
      platform{
          .log = log,
          .mainQueue = mainQueue,
          .userDefaults = userDefaults,
          .notificationCenter = notificationCenter,
          .bundle = bundle,
          .dates = dates,
          .accessibility = accessibility,
          .hotKeys = hotKeys,
          .eventTaps = eventTaps,
          .windowList = windowList,
          .workspace = workspace,
          .screens = screens,
          .keyboardLayout = keyboardLayout,
          .eventMonitors = eventMonitors,
          .overlayWindows = overlayWindows,
          .textMetrics = textMetrics,
          .systemColors = systemColors,
          .statusBar = statusBar,
          .permissions = permissions,
          .alerts = alerts,
          .preferencesUi = &preferencesUi,
          .updater = updater.get(),
          .loginItem = &loginItem,
      },
      app(platform),
      // macOS may have dropped hot keys while the machine slept or belonged to somebody else.
      sessionReturns(macos::observeSessionReturns([this] { app.mainController().registerShortcuts(); })),
      foreignChanges(userDefaults.observeForeignKeys(
          [this](const std::string& key) { handleForeignChanges({key}, userDefaults, notificationCenter, log); }))
{}

MacProgram::~MacProgram() = default;

void MacProgram::applicationDidFinishLaunching()
{
    app.appDelegate().applicationDidFinishLaunching();
}

void MacProgram::applicationWillTerminate()
{
    app.appDelegate().applicationWillTerminate();
}

} // namespace quorvel
