#include "platform/x11/desktop/DesktopFont.h"

#include "support/SettingsDaemon.h"
#include "x11/desktop/DesktopTest.h"

namespace quorvel::x11 {
namespace {

using DesktopFontTest = DesktopTest;

TEST_F(DesktopFontTest, IsAUsualOneWithoutASettingsDaemon)
{
    EXPECT_THAT(desktopFontFamilies(*connection), testing::EndsWith("sans-serif"));
}

TEST_F(DesktopFontTest, IsTheOneThatTheSettingsDaemonNames)
{
    const xtest::SettingsDaemon daemon(display.client, {{"Gtk/FontName", "Source Sans 3 Bold 10"}});
    EXPECT_THAT(desktopFontFamilies(*connection), testing::StartsWith("Source Sans 3, "));
}

} // namespace
} // namespace quorvel::x11
