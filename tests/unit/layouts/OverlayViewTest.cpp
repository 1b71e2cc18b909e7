#include "tests/unit/layouts/OverlayViewsFixture.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

class OverlayViewTest : public OverlayViewsFixture {};

TEST_F(OverlayViewTest, ShowsAFrameWithItsLetterInABoxInTheMiddle)
{
    const auto yellow = Color::bytes(255, 255, 0);
    const auto transparent = Color::bytes(136, 255, 255, 0);
    DrawList expected;
    expected.commands = {
        RoundedRectCommand{.rect = {0.0, 0.0, 718.0, 873.0},
                           .cornerRadius = 2.0,
                           .cornerStyle = CornerStyle::continuous,
                           .backing = Backing::open,
                           .fill = transparent,
                           .stroke = std::nullopt,
                           .shadow = std::nullopt},
        RoundedRectCommand{.rect = {1.0, 1.0, 716.0, 871.0},
                           .cornerRadius = 1.0,
                           .cornerStyle = CornerStyle::continuous,
                           .backing = Backing::open,
                           .fill = std::nullopt,
                           .stroke = Stroke{yellow, 2.0},
                           .shadow = std::nullopt},
        RoundedRectCommand{.rect = {343.0, 417.0, 33.0, 40.0},
                           .cornerRadius = 5.0,
                           .cornerStyle = CornerStyle::circular,
                           .backing = Backing::solid,
                           .fill = transparent,
                           .stroke = Stroke{yellow, 2.0},
                           .shadow = std::nullopt},
        TextCommand{.text = "A",
                    .font = {28.0, FontWeight::bold},
                    .color = yellow,
                    .box = {350.0, 420.0, 19.0, 34.0},
                    .alignment = TextAlignment::center,
                    .shadow = std::nullopt},
    };
    EXPECT_EQ(overlayLabelled("A"), expected);
}

TEST_F(OverlayViewTest, ReadsItsAppearanceFromTheSettings)
{
    settings.setString("overlayBorderColor", "#102030");
    settings.setString("overlayBackgroundColor", "#11223344");
    settings.setReal("overlayBorderWidth", 10.0);
    settings.setReal("overlayBorderRadius", 12.0);
    settings.setString("textBorderColor", "#405060");
    settings.setString("textBackgroundColor", "#708090");
    settings.setReal("textBorderWidth", 4.0);
    settings.setString("textColor", "#A0B0C0");
    settings.setReal("textSize", 40.0);
    settings.setReal("textBorderRadius", 9.0);
    settings.setBoolean("isTextBold", false);
    const auto list = overlayLabelled("Q");
    EXPECT_EQ(shapeAt(list, 0).fill, Color::bytes(0x11, 0x22, 0x33, 0x44));
    EXPECT_EQ(shapeAt(list, 0).cornerRadius, 12.0);
    EXPECT_EQ(shapeAt(list, 1).rect, (ViewRect{5.0, 5.0, 708.0, 863.0}));
    EXPECT_EQ(shapeAt(list, 1).stroke, (Stroke{Color::bytes(0x10, 0x20, 0x30), 10.0}));
    EXPECT_EQ(shapeAt(list, 2).fill, Color::bytes(0x70, 0x80, 0x90));
    EXPECT_EQ(shapeAt(list, 2).cornerRadius, 7.0);
    EXPECT_EQ(shapeAt(list, 2).stroke, (Stroke{Color::bytes(0x40, 0x50, 0x60), 4.0}));
    EXPECT_EQ(textAt(list, 3).color, Color::bytes(0xA0, 0xB0, 0xC0));
    EXPECT_EQ(textAt(list, 3).font, (Font{40.0, FontWeight::regular}));
}

TEST_F(OverlayViewTest, AColourThatCannotBeReadIsYellowAndABoxBlack)
{
    for (const auto* key :
         {"overlayBorderColor", "overlayBackgroundColor", "textBorderColor", "textBackgroundColor", "textColor"}) {
        settings.setString(key, "zz");
    }
    const auto yellow = desktop.systemColors.yellow();
    const auto list = overlayLabelled("A");
    EXPECT_EQ(shapeAt(list, 0).fill, yellow.withAlpha(0.5));
    EXPECT_EQ(shapeAt(list, 1).stroke->color, yellow);
    EXPECT_EQ(shapeAt(list, 2).fill, Color::black());
    EXPECT_EQ(shapeAt(list, 2).stroke->color, yellow);
    EXPECT_EQ(textAt(list, 3).color, yellow);
}

TEST_F(OverlayViewTest, TheLetterSitsAtTheAnchorOfTheSettings)
{
    const auto boxAt = [this](std::string_view position) {
        settings.setString("labelPosition", std::string(position));
        return outerRect(shapeAt(overlayLabelled("A"), 2));
    };
    EXPECT_EQ(boxAt("topLeft"), (ViewRect{0.0, 0.0, 35.0, 42.0}));
    EXPECT_EQ(boxAt("top"), (ViewRect{342.0, 0.0, 35.0, 42.0}));
    EXPECT_EQ(boxAt("topRight"), (ViewRect{683.0, 0.0, 35.0, 42.0}));
    EXPECT_EQ(boxAt("leading"), (ViewRect{0.0, 416.0, 35.0, 42.0}));
    EXPECT_EQ(boxAt("center"), (ViewRect{342.0, 416.0, 35.0, 42.0}));
    EXPECT_EQ(boxAt("trailing"), (ViewRect{683.0, 416.0, 35.0, 42.0}));
    EXPECT_EQ(boxAt("bottomLeft"), (ViewRect{0.0, 831.0, 35.0, 42.0}));
    EXPECT_EQ(boxAt("bottom"), (ViewRect{342.0, 831.0, 35.0, 42.0}));
    EXPECT_EQ(boxAt("bottomRight"), (ViewRect{683.0, 831.0, 35.0, 42.0}));
    EXPECT_EQ(boxAt("middle"), boxAt("center"));
}

TEST_F(OverlayViewTest, AnOverridePositionGoesBeforeTheSettings)
{
    settings.setString("labelPosition", "top");
    const auto list = overlay({"A", LabelPosition::bottom, std::nullopt, std::nullopt, {}});
    EXPECT_EQ(outerRect(shapeAt(list, 2)), (ViewRect{342.0, 831.0, 35.0, 42.0}));
}

TEST_F(OverlayViewTest, NamesStandUnderTheLetterInTheColourOfTheBorder)
{
    settings.setString("textBorderColor", "#FF000080");
    const auto list = overlay({"A", std::nullopt, "Safari", "Start page", {}});
    ASSERT_THAT(textsOf(list), ElementsAre("A", "Safari", "Start page"));
    const auto& letter = textAt(list, 3);
    const auto& appName = textAt(list, 4);
    const auto& title = textAt(list, 5);
    EXPECT_DOUBLE_EQ(appName.font.size, 19.6);
    EXPECT_DOUBLE_EQ(title.font.size, 19.6);
    EXPECT_EQ(appName.color, Color::bytes(255, 0, 0).withAlpha(128.0 / 255.0 * 0.85));
    EXPECT_EQ(title.color, appName.color);
    EXPECT_EQ(appName.alignment, TextAlignment::center);
    EXPECT_EQ(appName.box.minY(), letter.box.maxY());
    EXPECT_EQ(title.box.minY(), appName.box.maxY());
    EXPECT_EQ(appName.box.midX(), letter.box.midX());
    EXPECT_TRUE(shapeAt(list, 2).rect.contains(title.box));
}

TEST_F(OverlayViewTest, NamesAreFaintYellowWhereTheBorderColourCannotBeRead)
{
    settings.setString("textBorderColor", "?");
    EXPECT_EQ(textAt(overlay({"A", std::nullopt, "Safari", std::nullopt, {}}), 4).color,
              desktop.systemColors.yellow().withAlpha(0.4));
}

TEST_F(OverlayViewTest, ALongTitleIsCutToTheFrame)
{
    const auto list = overlay({"A", std::nullopt, std::nullopt, std::string(200, 'x'), {}}, {300.0, 200.0});
    EXPECT_EQ(outerRect(shapeAt(list, 2)).width, 300.0);
    EXPECT_EQ(textAt(list, 4).box.width, 276.0);
}

TEST_F(OverlayViewTest, WithoutWindowInfoTheLetterStandsAlone)
{
    settings.setBoolean("showWindowInfo", false);
    EXPECT_THAT(textsOf(overlay({"A", std::nullopt, "Safari", "Start page", {}})), ElementsAre("A"));
}

TEST_F(OverlayViewTest, EachEvaluationWritesOneLine)
{
    overlayLabelled("A");
    overlay({"B", std::nullopt, "Safari", std::nullopt, {}});
    overlay({"C", std::nullopt, std::nullopt, "Start page", {}});
    settings.setBoolean("showWindowInfo", false);
    overlay({"D", std::nullopt, "Safari", "Start page", {}});
    EXPECT_THAT(desktop.log.lines(),
                ElementsAre("📊 OverlayView: label=A, appName=nil, title=nil, shouldShow=false",
                            "📊 OverlayView: label=B, appName=Safari, title=nil, shouldShow=true",
                            "📊 OverlayView: label=C, appName=nil, title=Start page, shouldShow=true",
                            "📊 OverlayView: label=D, appName=Safari, title=Start page, shouldShow=false"));
}

TEST_F(OverlayViewTest, WidthsThatMakeNoSenseLeaveOutTheBorder)
{
    settings.setReal("overlayBorderWidth", -3.0);
    settings.setReal("textBorderWidth", 0.0);
    settings.setReal("textSize", -5.0);
    const auto list = overlayLabelled("A");
    ASSERT_THAT(list.commands, SizeIs(3));
    EXPECT_EQ(shapeAt(list, 0).rect, (ViewRect{0.0, 0.0, 718.0, 873.0}));
    EXPECT_EQ(shapeAt(list, 1).backing, Backing::solid);
    EXPECT_EQ(textAt(list, 2).font.size, 0.0);
}

} // namespace
} // namespace quorvel
