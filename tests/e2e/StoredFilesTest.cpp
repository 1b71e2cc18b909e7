#include <string>

#include "e2e/ProgramTest.h"
#include "support/FileContent.h"

namespace quorvel::e2e {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using xtest::contentOf;

const UnitFrames sixTiles = {{0, 0.5, 1.0 / 3, 1}, {1.0 / 3, 0.5, 2.0 / 3, 1}, {2.0 / 3, 0.5, 1, 1},
                             {0, 0, 1.0 / 3, 0.5}, {1.0 / 3, 0, 2.0 / 3, 0.5}, {2.0 / 3, 0, 1, 0.5}};

class StoredSettings : public ProgramTest {};

TEST_F(StoredSettings, TheFirstStartStoresTheSelectionAndTheSecondKeepsIt)
{
    start();
    endCleanly();
    const auto first = storedSettings();
    EXPECT_THAT(first, HasSubstr("<key>didSeedDefaultLayouts</key>"));
    EXPECT_THAT(first, HasSubstr("<string>four_tiled</string>"));
    start();
    endCleanly();
    EXPECT_EQ(storedSettings(), first);
}

TEST_F(StoredSettings, AreUsedFromTheFirstKeyOn)
{
    writeSettings("<key>didSeedDefaultLayouts</key><true/>"
                  "<key>selectedLayoutIDs</key><array><string>six_tiled</string></array>"
                  "<key>layoutShortcuts</key><dict/>");
    start();
    const auto window = openWindow();
    showOverlay(sixTiles);
    display.keyboard.tap(XKB_KEY_e);
    quorvel->waitUntilPlaced(window->id(), sixTiles[4].within(screen));
    endCleanly();
}

TEST_F(StoredSettings, OfAWrongTypeAreNamedAndCountAsAbsent)
{
    writeSettings("<key>didSeedDefaultLayouts</key><true/>"
                  "<key>activateOverlayModifiers</key><string>256</string>"
                  "<key>selectedLayoutIDs</key><string>six_tiled</string>"
                  "<key>overlayBorderWidth</key><string>wide</string>");
    start();
    for (const char* setting : {"activateOverlayModifiers", "overlayBorderWidth", "selectedLayoutIDs"}) {
        quorvel->program().waitForLine(setting, [&](std::string_view line) {
            return line.starts_with("Setting ") && line.find(setting) != std::string_view::npos;
        });
    }
    const auto window = openWindow();
    showOverlay(fullScreen);
    display.keyboard.tap(XKB_KEY_a);
    quorvel->waitUntilPlaced(window->id(), screen);
    endCleanly();
}

TEST_F(StoredSettings, ThatAreDamagedAreMovedAsideAndNeverLost)
{
    constexpr auto damaged = "<plist><dict><key>selectedLay";
    configuration.write("quorvel/settings.plist", damaged);
    start();
    const auto window = openWindow();
    showOverlay(fullScreen);
    display.keyboard.tap(XKB_KEY_a);
    quorvel->waitUntilPlaced(window->id(), screen);
    EXPECT_EQ(quorvel->end(), 0);
    EXPECT_THAT(quorvel->program().errorLines(),
                ElementsAre(testing::AllOf(HasSubstr("settings.plist"), HasSubstr("damaged"))));
    EXPECT_EQ(contentOf(settingsFile().string() + ".damaged-1"), damaged);
    EXPECT_THAT(storedSettings(), HasSubstr("didSeedDefaultLayouts"));
}

class StoredLayouts : public ProgramTest {};

TEST_F(StoredLayouts, ThatAreDamagedCostALineAndNeverTheKeyboard)
{
    const xtest::TemporaryDirectory resources;
    resources.write("layouts.json", R"({"layouts": [{"id": "a", "windows": []}, ]})");
    start({.environment = {{"QUORVEL_RESOURCES", resources.path().string()}}});
    EXPECT_THAT(quorvel->program().outputLines(),
                testing::Contains(testing::StartsWith("Error reading layouts JSON asset: ")));
    const auto window = openWindow();
    const auto before = display.client.outerRect(window->id());
    const auto& hotKey = RunningQuorvel::hotKey();
    for (const auto modifier : hotKey.modifiers) {
        display.keyboard.pressModifier(modifier);
    }
    display.keyboard.press(hotKey.keysym); // held, since no frame tells when the keyboard has been taken
    typeIntoOverlay(XKB_KEY_Escape);
    display.keyboard.release(hotKey.keysym);
    for (const auto modifier : hotKey.modifiers) {
        display.keyboard.releaseModifier(modifier);
    }
    quorvel->waitUntilIdle();
    EXPECT_EQ(display.client.outerRect(window->id()), before);
    EXPECT_EQ(quorvel->end(), 0);
}

} // namespace
} // namespace quorvel::e2e
