#include <algorithm>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "layouts/CompactLabelView.h"
#include "layouts/OverlayView.h"
#include "layouts/WindowBorderOverlay.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "preferences/AppearancePreferencesView.h"
#include "preferences/MoveResizeAppearanceView.h"
#include "preferences/PreviewDrawing.h"
#include "preferences/WindowSwitcherAppearanceView.h"
#include "settings/AppearanceSettings.h"
#include "system/OverlayFrameView.h"
#include "tests/unit/preferences/FormReading.h"

namespace quorvel {
namespace {

class AppearancePreviewsTest : public testing::Test {
protected:
    template <class Pane>
    PreviewControl previewOf(const Pane& pane) const
    {
        return controlOf<PreviewControl>(pane.form(), "preview");
    }

    // True if the part is drawn without gaps, with its origin at that place.
    static bool shows(const PreviewControl& preview, const DrawList& part, const ViewPoint& origin)
    {
        DrawList moved;
        appendAt(moved, origin, part);
        return !std::ranges::search(preview.content.commands, moved.commands).empty();
    }

    static std::vector<std::string> textsIn(const PreviewControl& preview)
    {
        std::vector<std::string> texts;
        for (const auto& command : preview.content.commands) {
            if (const auto* const text = std::get_if<TextCommand>(&command); text != nullptr && !text->text.empty()) {
                texts.push_back(text->text);
            }
        }
        return texts;
    }

    static ViewRect boundsOf(const DrawCommand& command)
    {
        const auto* const text = std::get_if<TextCommand>(&command);
        return text != nullptr ? text->box : std::get<RoundedRectCommand>(command).rect;
    }

    static bool staysInside(const PreviewControl& preview)
    {
        const ViewRect bounds{0.0, 0.0, preview.size.width, preview.size.height};
        return std::ranges::all_of(preview.content.commands,
                                   [&](const auto& command) { return bounds.contains(boundsOf(command)); });
    }

    SimulatedDesktop desktop;
    const Platform platform = desktop.platform();
    const Settings settings{desktop.userDefaults};
    const ViewEnvironment environment{desktop.textMetrics, desktop.systemColors};
};

TEST_F(AppearancePreviewsTest, TheLayoutPanesSampleIsTheOverlaysOwnView)
{
    AppearancePreferencesView pane(platform);
    pane.set("overlayBorderWidth", 4.0);
    pane.set("labelPosition", std::int64_t{0});
    const auto preview = previewOf(pane);
    const OverlayView sample{.label = "Sample",
                             .overridePosition = {},
                             .appName = {},
                             .windowTitle = {},
                             .appearance = layoutOverlayAppearance(settings)};
    EXPECT_EQ(sample.appearance.overlayBorderWidth, 4.0);
    EXPECT_TRUE(shows(preview, sample.drawList({580.0, 200.0}, environment), {30.0, 30.0}));
    EXPECT_EQ(textsIn(preview), (std::vector<std::string>{"Sample"}));
    EXPECT_TRUE(desktop.log.lines().empty());
}

TEST_F(AppearancePreviewsTest, TheLayoutPanesGridFollowsItsToggle)
{
    AppearancePreferencesView pane(platform);
    const auto without = previewOf(pane).content.commands.size();
    pane.set("showPreviewGrid", true);
    const auto with = previewOf(pane).content.commands.size();
    EXPECT_EQ(with, without + 31 + 12); // a line every 20 points inside 640 by 260
}

TEST_F(AppearancePreviewsTest, TheSwitcherPanesSampleIsMadeOfTheSwitchersOwnViews)
{
    WindowSwitcherAppearanceView pane(platform);
    pane.set("wsTextSize", 20.0);
    pane.set("wsBorderWidth", 6.0);
    const auto preview = previewOf(pane);
    const auto appearance = switcherAppearance(settings);
    EXPECT_TRUE(shows(preview, WindowBorderOverlay{appearance}.body({600.0, 180.0}, environment), {20.0, 20.0}));
    const CompactLabelView label{
        .label = "A", .appName = "Safari", .windowTitle = "Example Window Title", .appearance = appearance};
    // 20 × 0.7 × 20 characters × 0.5 + 60 wide, 20 × 3.5 + 60 high, 16 points in from the window's corner.
    EXPECT_TRUE(shows(preview, label.body({200.0, 130.0}, environment), {36.0, 36.0}));
    EXPECT_EQ(textsIn(preview), (std::vector<std::string>{"A", "Safari", "Example Window Title"}));
}

TEST_F(AppearancePreviewsTest, TheSwitcherPanesSampleFollowsTheLabelsPosition)
{
    WindowSwitcherAppearanceView pane(platform);
    pane.set("wsTextSize", 20.0);
    pane.set("wsLabelPosition", std::int64_t{8}); // bottom right
    const CompactLabelView label{.label = "A",
                                 .appName = "Safari",
                                 .windowTitle = "Example Window Title",
                                 .appearance = switcherAppearance(settings)};
    EXPECT_TRUE(shows(previewOf(pane), label.body({200.0, 130.0}, environment),
                      {20.0 + 600.0 - 200.0 - 16.0, 20.0 + 180.0 - 130.0 - 16.0}));
}

TEST_F(AppearancePreviewsTest, WithoutWindowInfoTheSampleHasItsLetterOnly)
{
    WindowSwitcherAppearanceView pane(platform);
    pane.set("showWindowInfo", false);
    EXPECT_EQ(textsIn(previewOf(pane)), (std::vector<std::string>{"A"}));
}

TEST_F(AppearancePreviewsTest, TheSwitcherPanesGridFollowsItsToggle)
{
    WindowSwitcherAppearanceView pane(platform);
    const auto without = previewOf(pane).content.commands.size();
    pane.set("showPreviewGrid", true);
    EXPECT_GT(previewOf(pane).content.commands.size(), without);
}

TEST_F(AppearancePreviewsTest, EvenTheLargestLabelStaysInsideThePreview)
{
    WindowSwitcherAppearanceView pane(platform);
    pane.set("wsTextSize", 96.0);
    for (std::int64_t position = 0; position < 9; ++position) {
        pane.set("wsLabelPosition", position);
        EXPECT_TRUE(staysInside(previewOf(pane))) << position;
    }
}

TEST_F(AppearancePreviewsTest, TheMoveResizePaneFramesItsSampleWindows)
{
    MoveResizeAppearanceView pane(platform);
    pane.set("mrSelectionColorHex", Color::bytes(255, 0, 0));
    pane.set("mrSnapTargetGlow", false);
    const auto preview = previewOf(pane);
    const auto frame = [&](const FrameAppearance& appearance) {
        return OverlayFrameView(desktop.systemColors, appearance).drawList({265.0, 170.0});
    };
    EXPECT_TRUE(shows(preview, frame(selectionFrameAppearance(settings, desktop.systemColors)), {40.0, 35.0}));
    EXPECT_TRUE(shows(preview, frame(snapTargetFrameAppearance(settings, desktop.systemColors)), {335.0, 35.0}));
    EXPECT_EQ(textsIn(preview), (std::vector<std::string>{"Window A", "Window B"}));
}

TEST_F(AppearancePreviewsTest, EveryPreviewTellsWhatItShows)
{
    EXPECT_FALSE(previewOf(AppearancePreferencesView(platform)).description.empty());
    EXPECT_FALSE(previewOf(WindowSwitcherAppearanceView(platform)).description.empty());
    EXPECT_FALSE(previewOf(MoveResizeAppearanceView(platform)).description.empty());
}

} // namespace
} // namespace quorvel
