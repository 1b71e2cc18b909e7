#include "doctor/DesktopFindings.h"

#include "tests/unit/doctor/DoctorFixture.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using DesktopFindings = DoctorFixture;

TEST_F(DesktopFindings, ADesktopThatHasEverythingHasNothingButGoodFindings)
{
    for (const auto& section : examined().sections) {
        for (const auto& found : section.findings) {
            EXPECT_EQ(found.verdict, Verdict::good) << found.id << ": " << found.text;
        }
    }
    EXPECT_TRUE(isFit());
}

TEST_F(DesktopFindings, WithoutADesktopTheReasonStandsInTheWayAndSettingsAreStillLookedAt)
{
    const auto diagnosis =
        examine({"wayland", std::unexpected(std::string("This is no session for it.")), stored, desktop.bundle});
    EXPECT_FALSE(diagnosis.isFit());
    const auto session = findings(diagnosis, "session.display");
    EXPECT_THAT(session, ElementsAre(says(Verdict::problem, "This is no session for it.")));
    EXPECT_THAT(session.front().advice, HasSubstr("X11"));
    EXPECT_EQ(findings(diagnosis, "settings.file").size(), 1U);
    EXPECT_THAT(findings(diagnosis, "window-manager.running"), IsEmpty());
}

TEST_F(DesktopFindings, TheSessionIsNamedAndWhetherTheProgramRuns)
{
    EXPECT_THAT(finding("session.display"),
                says(Verdict::good, "The display \"simulated\" answers. The session's type is \"x11\"."));
    EXPECT_THAT(finding("session.running"), says(Verdict::good, "Quorvel is not running on it."));
    desktop.desktopProbe.desktop.isProgramRunning = true;
    EXPECT_THAT(finding("session.running"), says(Verdict::good, "Quorvel is running on it."));
}

TEST_F(DesktopFindings, WithoutAWindowManagerNothingCanBePlaced)
{
    desktop.desktopProbe.desktop.windowManager.reset();
    EXPECT_THAT(finding("window-manager.running"), says(Verdict::problem, HasSubstr("No window manager runs")));
    EXPECT_THAT(findings(examined(), "window-manager.places-windows"), IsEmpty());
    EXPECT_FALSE(isFit());
}

TEST_F(DesktopFindings, AWindowManagerThatListsNoWindowsIsAProblemAndOneThatTellsNoFramesIsNot)
{
    auto& features = desktop.desktopProbe.desktop.windowManager->features;
    std::erase(features, WindowManagerFeature::tellsFrames);
    EXPECT_THAT(finding("window-manager.tells-frames"), says(Verdict::notice, HasSubstr("_NET_FRAME_EXTENTS")));
    EXPECT_TRUE(isFit());
    std::erase(features, WindowManagerFeature::listsWindows);
    EXPECT_THAT(finding("window-manager.lists-windows"),
                says(Verdict::problem, HasSubstr("_NET_CLIENT_LIST_STACKING")));
    EXPECT_FALSE(isFit());
}

TEST_F(DesktopFindings, EachFeatureThatLacksIsTold)
{
    desktop.desktopProbe.desktop.windowManager->features.clear();
    const auto diagnosis = examined();
    for (const auto* id : {"lists-windows", "tells-active-window", "places-windows", "leaves-fullscreen",
                           "tells-frames", "switches-desktops", "tells-hidden"}) {
        EXPECT_EQ(findings(diagnosis, std::string("window-manager.") + id).size(), 1U) << id;
    }
}

TEST_F(DesktopFindings, ATilingWindowManagerIsKnownByItsName)
{
    desktop.desktopProbe.desktop.windowManager->name = "i3";
    EXPECT_THAT(finding("window-manager.tiles"), says(Verdict::notice, HasSubstr("floating windows only")));
}

TEST_F(DesktopFindings, ACompositorAndATrayAreWelcomeButNotNeeded)
{
    desktop.desktopProbe.desktop.hasCompositor = false;
    desktop.desktopProbe.desktop.hasTray = false;
    EXPECT_THAT(finding("window-manager.compositor"), says(Verdict::notice, HasSubstr("No compositor runs")));
    EXPECT_THAT(finding("parts.tray"), says(Verdict::notice, HasSubstr("There is no tray")));
    EXPECT_TRUE(isFit());
}

TEST_F(DesktopFindings, AToolkitThatCannotBeLoadedIsToldWithTheReasonAndIsNotNeeded)
{
    desktop.desktopProbe.desktop.toolkit.problem = "libtoolkit.so: no such file";
    EXPECT_THAT(finding("parts.toolkit"), says(Verdict::notice, HasSubstr("libtoolkit.so: no such file")));
    EXPECT_TRUE(isFit());
}

TEST_F(DesktopFindings, LabelsNeedFonts)
{
    desktop.desktopProbe.desktop.hasFonts = false;
    EXPECT_THAT(finding("parts.fonts"), says(Verdict::problem, HasSubstr("no fonts")));
}

TEST_F(DesktopFindings, MonitorsAreToldWithWhatPanelsLeave)
{
    desktop.desktopProbe.desktop.monitors = {{"DP-1", {0, 0, 1920, 1080}, {0, 30, 1920, 1050}},
                                             {"", {1920, 0, 1280, 1024}, {1920, 0, 1280, 1024}}};
    EXPECT_THAT(findings(examined(), "monitors.monitor"),
                ElementsAre(says(Verdict::good, "DP-1: 1920 × 1080 at 0, 0; panels leave 1920 × 1050 at 0, 30."),
                            says(Verdict::good, "A monitor: 1280 × 1024 at 1920, 0, all of it for windows.")));
}

TEST_F(DesktopFindings, AMonitorThatPanelsFillAndNoMonitorAtAllAreProblems)
{
    desktop.desktopProbe.desktop.monitors = {{"DP-1", {0, 0, 1920, 1080}, {0, 1080, 1920, 0}}};
    EXPECT_THAT(finding("monitors.monitor"), says(Verdict::problem, HasSubstr("leave nothing")));
    desktop.desktopProbe.desktop.monitors.clear();
    EXPECT_THAT(finding("monitors.monitor"), says(Verdict::problem, "There is no monitor."));
}

TEST_F(DesktopFindings, APermissionThatIsNotGivenIsAProblem)
{
    desktop.permissions.deny(Permission::inputMonitoring);
    EXPECT_THAT(finding("permissions.input-monitoring"), says(Verdict::problem, HasSubstr("is not given")));
    EXPECT_THAT(finding("permissions.accessibility"), says(Verdict::good, HasSubstr("is given")));
    EXPECT_FALSE(isFit());
}

} // namespace
} // namespace quorvel
