#include "platform/x11/desktop/DesktopFont.h"

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
    auto& client = display.client;
    const auto owner = xcb_generate_id(client.connection());
    xcb_create_window(client.connection(), XCB_COPY_FROM_PARENT, owner, client.root(), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    const std::string settings = std::string("\0\0\0\0\1\0\0\0\1\0\0\0", 12) +
                                 std::string("\1\0\14\0Gtk/FontName", 16) +
                                 std::string("\1\0\0\0\26\0\0\0Source Sans 3 Bold 10\0\0\0", 32);
    xcb_change_property(client.connection(), XCB_PROP_MODE_REPLACE, owner, client.atom("_XSETTINGS_SETTINGS"),
                        client.atom("_XSETTINGS_SETTINGS"), 8, static_cast<std::uint32_t>(settings.size()),
                        settings.data());
    xcb_set_selection_owner(client.connection(), owner, client.atom("_XSETTINGS_S0"), XCB_CURRENT_TIME);
    client.sync();
    EXPECT_THAT(desktopFontFamilies(*connection), testing::StartsWith("Source Sans 3, "));
}

} // namespace
} // namespace quorvel::x11
