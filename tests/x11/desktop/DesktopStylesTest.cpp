#include "platform/x11/desktop/DesktopStyles.h"

#include <cstdlib>

#include "support/SettingsDaemon.h"
#include "x11/desktop/DesktopTest.h"

namespace quorvel::x11 {
namespace {

class DesktopStylesTest : public DesktopTest {
protected:
    void SetUp() override { setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1); }

    // Turns the loop until this many changes have been told in all.
    void waitForChanges(int count)
    {
        loop.waitFor("a change of the style", [&] { return changes >= count; });
        EXPECT_EQ(changes, count);
    }

    DesktopStyles styles{*connection};
    int changes = 0;
};

TEST_F(DesktopStylesTest, ADesktopWithoutASettingsDaemonIsLight)
{
    EXPECT_EQ(styles.current(), DesktopStyle());
}

TEST_F(DesktopStylesTest, TheSettingsDaemonNamesThemeAndFont)
{
    xtest::SettingsDaemon daemon(display.client, {{"Gtk/FontName", "Inter 11"}, {"Net/ThemeName", "Adwaita-dark"}});
    EXPECT_EQ(styles.current(), (DesktopStyle{.scheme = ColorScheme::dark, .font = "Inter 11"}));
    daemon.publish({{"Net/ThemeName", "Adwaita"}});
    EXPECT_EQ(styles.current(), DesktopStyle());
}

TEST_F(DesktopStylesTest, TellsOfNewSettingsAndOfANewDaemon)
{
    auto daemon = std::make_unique<xtest::SettingsDaemon>(display.client, xtest::SettingsDaemon::Settings());
    auto token = styles.observe([this] { ++changes; });
    connection->sync();
    daemon->publish({{"Net/ThemeName", "Adwaita-dark"}});
    waitForChanges(1);
    EXPECT_EQ(styles.current().scheme, ColorScheme::dark);

    daemon.reset();
    daemon = std::make_unique<xtest::SettingsDaemon>(display.client, xtest::SettingsDaemon::Settings());
    waitForChanges(2);
    EXPECT_EQ(styles.current().scheme, ColorScheme::light);
    connection->sync();
    daemon->publish({{"Net/ThemeName", "Adwaita-dark"}});
    waitForChanges(3);

    token.reset();
    daemon->publish({{"Net/ThemeName", "Adwaita"}});
    connection->sync();
    loop.drain();
    EXPECT_EQ(changes, 3);
}

} // namespace
} // namespace quorvel::x11
