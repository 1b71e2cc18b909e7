#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "layouts/CompactLabelView.h"
#include "layouts/LayoutShortcutsLegendView.h"
#include "layouts/OverlayView.h"
#include "layouts/WindowBorderOverlay.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "settings/AppearanceSettings.h"
#include "settings/Settings.h"

// In the simulated font a character is 0.65 of the size wide where bold or semibold and 0.6 where regular, and a line
// is 1.2 of it high, both rounded up.

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

const RoundedRectCommand& shapeAt(const DrawList& list, std::size_t index)
{
    return std::get<RoundedRectCommand>(list.commands.at(index));
}

const TextCommand& textAt(const DrawList& list, std::size_t index)
{
    return std::get<TextCommand>(list.commands.at(index));
}

ViewRect outerRect(const RoundedRectCommand& shape)
{
    const double outside = shape.stroke ? shape.stroke->width / 2.0 : 0.0;
    const auto& rect = shape.rect;
    return {rect.x - outside, rect.y - outside, rect.width + 2.0 * outside, rect.height + 2.0 * outside};
}

std::vector<std::string> textsOf(const DrawList& list)
{
    std::vector<std::string> texts;
    for (const auto& command : list.commands) {
        if (const auto* text = std::get_if<TextCommand>(&command)) {
            texts.push_back(text->text);
        }
    }
    return texts;
}

class OverlayViewsTest : public testing::Test {
protected:
    DrawList overlay(OverlayView view, const Size& size = {718.0, 873.0})
    {
        view.appearance = layoutOverlayAppearance(settings);
        return view.body(size, environment, desktop.log);
    }

    DrawList overlayLabelled(std::string label)
    {
        return overlay({std::move(label), std::nullopt, std::nullopt, std::nullopt, {}});
    }

    DrawList border(const Size& size = {800.0, 600.0})
    {
        return WindowBorderOverlay{switcherAppearance(settings)}.body(size, environment);
    }

    DrawList compactLabel(std::optional<std::string> appName, std::optional<std::string> windowTitle,
                          const Size& size = {508.0, 284.0})
    {
        return CompactLabelView{"A", std::move(appName), std::move(windowTitle), switcherAppearance(settings)}.body(
            size, environment);
    }

    FittedDrawing legend(std::vector<LayoutShortcutEntry> entries)
    {
        return LayoutShortcutsLegendView{std::move(entries)}.body(environment);
    }

    SimulatedDesktop desktop;
    Settings settings{desktop.userDefaults};
    ViewEnvironment environment{desktop.textMetrics, desktop.systemColors};
};

class OverlayViewTest : public OverlayViewsTest {};

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

class WindowBorderOverlayTest : public OverlayViewsTest {};

TEST_F(WindowBorderOverlayTest, FillsItsWindowAndKeepsTheStrokeInside)
{
    const auto list = border();
    ASSERT_THAT(list.commands, SizeIs(2));
    EXPECT_EQ(shapeAt(list, 0).rect, (ViewRect{0.0, 0.0, 800.0, 600.0}));
    EXPECT_EQ(shapeAt(list, 0).fill, Color::bytes(136, 0, 212, 255));
    EXPECT_EQ(shapeAt(list, 0).cornerRadius, 8.0);
    EXPECT_EQ(shapeAt(list, 0).cornerStyle, CornerStyle::continuous);
    EXPECT_EQ(shapeAt(list, 0).backing, Backing::open);
    EXPECT_EQ(shapeAt(list, 1).rect, (ViewRect{1.5, 1.5, 797.0, 597.0}));
    EXPECT_EQ(shapeAt(list, 1).cornerRadius, 6.5);
    EXPECT_EQ(shapeAt(list, 1).stroke, (Stroke{Color::bytes(0, 212, 255), 3.0}));
    EXPECT_EQ(shapeAt(list, 1).fill, std::nullopt);
}

TEST_F(WindowBorderOverlayTest, AStrokeTenWideIsInsetByFive)
{
    settings.setReal("wsBorderWidth", 10.0);
    EXPECT_EQ(shapeAt(border(), 1).rect, (ViewRect{5.0, 5.0, 790.0, 590.0}));
}

TEST_F(WindowBorderOverlayTest, AColourThatCannotBeReadIsBlue)
{
    settings.setString("wsBorderColor", "#1");
    settings.setString("wsBackgroundColor", "");
    const auto blue = desktop.systemColors.blue();
    EXPECT_EQ(shapeAt(border(), 0).fill, blue.withAlpha(0.5));
    EXPECT_EQ(shapeAt(border(), 1).stroke->color, blue);
}

class CompactLabelViewTest : public OverlayViewsTest {};

TEST_F(CompactLabelViewTest, ShowsTheLetterAndTheNamesInABoxInTheMiddle)
{
    const auto list = compactLabel("Safari", "Start page");
    ASSERT_THAT(textsOf(list), ElementsAre("A", "Safari", "Start page"));
    // The title is the widest line: ten characters of 10.88 points. The lines are 77, 16 and 14 points high.
    EXPECT_EQ(outerRect(shapeAt(list, 0)), (ViewRect{209.0, 83.0, 90.0, 119.0}));
    EXPECT_EQ(shapeAt(list, 0).cornerRadius, 7.0);
    EXPECT_EQ(shapeAt(list, 0).backing, Backing::solid);
    EXPECT_EQ(shapeAt(list, 0).fill, Color::bytes(221, 0, 0, 0));
    EXPECT_EQ(shapeAt(list, 0).stroke, (Stroke{Color::white(), 2.0}));
    EXPECT_EQ(textAt(list, 1).font, (Font{64.0, FontWeight::bold}));
    EXPECT_EQ(textAt(list, 1).color, Color::white());
    EXPECT_EQ(textAt(list, 1).box, (ViewRect{217.0, 87.0, 74.0, 77.0}));
    EXPECT_EQ(textAt(list, 2).box, (ViewRect{221.0, 164.0, 66.0, 16.0}));
    EXPECT_EQ(textAt(list, 3).box, (ViewRect{221.0, 180.0, 66.0, 14.0}));
}

TEST_F(CompactLabelViewTest, NamesAreWhiteWithASoftShadow)
{
    const auto list = compactLabel("Safari", "Start page");
    const Shadow soft{Color::black().withAlpha(0.5), 1.0};
    EXPECT_EQ(textAt(list, 2).color, Color::white().withAlpha(0.95));
    EXPECT_EQ(textAt(list, 3).color, Color::white().withAlpha(0.65));
    EXPECT_EQ(textAt(list, 2).font.weight, FontWeight::semibold);
    EXPECT_EQ(textAt(list, 3).font.weight, FontWeight::regular);
    EXPECT_EQ(textAt(list, 2).shadow, soft);
    EXPECT_EQ(textAt(list, 3).shadow, soft);
}

TEST_F(CompactLabelViewTest, LetterAndBoxCastOneBlackShadowThatTheFillCovers)
{
    const auto shadowsOn = [this](std::string fill) {
        settings.setString("wsTextBackgroundColor", std::move(fill));
        const auto list = compactLabel(std::nullopt, std::nullopt);
        return std::pair(shapeAt(list, 0).shadow, textAt(list, 1).shadow);
    };
    const Shadow black{Color::black(), 4.0};
    EXPECT_EQ(shadowsOn("#DD000000"), std::pair(std::optional(black), std::optional(black)));
    EXPECT_EQ(shadowsOn("#FFFFFF"), std::pair(std::optional(black), std::optional<Shadow>()));
    const Shadow faint{Color::black().withAlpha(1.0 - 0x33 / 255.0), 4.0};
    EXPECT_EQ(shadowsOn("#00000033"), std::pair(std::optional(black), std::optional(faint)));
}

TEST_F(CompactLabelViewTest, NamesGrowWithTheLetterButStayReadable)
{
    const auto sizesAt = [this](double textSize) {
        settings.setReal("wsTextSize", textSize);
        const auto list = compactLabel("Safari", "Start page");
        return std::pair(textAt(list, 2).font.size, textAt(list, 3).font.size);
    };
    EXPECT_EQ(sizesAt(30.0), std::pair(12.0, 10.0));
    EXPECT_DOUBLE_EQ(sizesAt(64.0).first, 12.8);
    EXPECT_DOUBLE_EQ(sizesAt(64.0).second, 10.88);
    EXPECT_DOUBLE_EQ(sizesAt(100.0).first, 20.0);
    EXPECT_DOUBLE_EQ(sizesAt(100.0).second, 17.0);
}

TEST_F(CompactLabelViewTest, ATextSizeThatIsNotPositiveCountsAs64)
{
    for (const double textSize : {0.0, -3.0}) {
        settings.setReal("wsTextSize", textSize);
        EXPECT_EQ(textAt(compactLabel(std::nullopt, std::nullopt), 1).font.size, 64.0) << textSize;
    }
}

TEST_F(CompactLabelViewTest, ANameThatIsMissingOrEmptyTakesNoRoom)
{
    EXPECT_THAT(textsOf(compactLabel(std::nullopt, "Start page")), ElementsAre("A", "Start page"));
    EXPECT_THAT(textsOf(compactLabel("Safari", "")), ElementsAre("A", "Safari"));
    const auto letterAlone = compactLabel(std::nullopt, std::nullopt);
    EXPECT_EQ(compactLabel("", ""), letterAlone);
    settings.setBoolean("showWindowInfo", false);
    EXPECT_EQ(compactLabel("Safari", "Start page"), letterAlone);
}

TEST_F(CompactLabelViewTest, ALongTitleIsCutToTheLabel)
{
    const auto list = compactLabel("Safari", std::string(500, 'x'), {508.0, 284.0});
    EXPECT_EQ(outerRect(shapeAt(list, 0)).minX(), 4.0);
    EXPECT_EQ(outerRect(shapeAt(list, 0)).maxX(), 504.0);
    EXPECT_EQ(textAt(list, 3).box.width, 476.0);
}

TEST_F(CompactLabelViewTest, AColourThatCannotBeReadIsWhiteOnBlack)
{
    settings.setString("wsTextColor", "#1");
    settings.setString("wsTextBackgroundColor", "#1");
    settings.setString("wsTextBorderColor", "#1");
    const auto list = compactLabel(std::nullopt, std::nullopt);
    EXPECT_EQ(shapeAt(list, 0).fill, Color::black());
    EXPECT_EQ(shapeAt(list, 0).stroke->color, Color::white());
    EXPECT_EQ(textAt(list, 1).color, Color::white());
}

class LayoutShortcutsLegendViewTest : public OverlayViewsTest {};

TEST_F(LayoutShortcutsLegendViewTest, ListsTheDigitsUnderAHeading)
{
    const auto drawing = legend({{"1", "Full", true}, {"2", "Centered", false}});
    const auto& list = drawing.content;
    ASSERT_THAT(list.commands, SizeIs(9));
    EXPECT_THAT(textsOf(list), ElementsAre("Jump to layout", "1", "Full", "2", "Centered"));

    EXPECT_EQ(textAt(list, 2).font, (Font{11.0, FontWeight::semibold}));
    EXPECT_EQ(textAt(list, 2).color, Color::white().withAlpha(0.6));

    EXPECT_EQ(shapeAt(list, 3).fill, desktop.systemColors.accent());
    EXPECT_EQ(shapeAt(list, 3).cornerRadius, 5.0);
    EXPECT_EQ(textAt(list, 4).font, (Font{12.0, FontWeight::bold}));
    EXPECT_EQ(textAt(list, 4).alignment, TextAlignment::center);
    EXPECT_EQ(textAt(list, 5).font, (Font{12.0, FontWeight::semibold}));
    EXPECT_EQ(textAt(list, 5).color, Color::white());

    EXPECT_EQ(shapeAt(list, 6).fill, Color::white().withAlpha(0.15));
    EXPECT_EQ(textAt(list, 7).color, Color::white());
    EXPECT_EQ(textAt(list, 8).font, (Font{12.0, FontWeight::regular}));
}

TEST_F(LayoutShortcutsLegendViewTest, IsAsLargeAsItsContentNeeds)
{
    // The heading is 101 x 14 points, a row 20 points high; "Centered" needs 58 points beside its badge.
    const auto drawing = legend({{"1", "Full", true}, {"2", "Centered", false}});
    EXPECT_EQ(drawing.fittingSize, (Size{125.0, 90.0}));
    EXPECT_EQ(textAt(drawing.content, 2).box, (ViewRect{12.0, 12.0, 101.0, 14.0}));
    EXPECT_EQ(shapeAt(drawing.content, 3).rect, (ViewRect{12.0, 32.0, 20.0, 20.0}));
    EXPECT_EQ(textAt(drawing.content, 4).box, (ViewRect{12.0, 32.0, 20.0, 20.0}));
    EXPECT_EQ(textAt(drawing.content, 5).box, (ViewRect{40.0, 32.0, 32.0, 20.0}));
    EXPECT_EQ(shapeAt(drawing.content, 6).rect, (ViewRect{12.0, 58.0, 20.0, 20.0}));
    EXPECT_EQ(textAt(drawing.content, 8).box, (ViewRect{40.0, 58.0, 58.0, 20.0}));

    const auto wide = legend({{"1", "Main Left, Two Stacked Right", false}});
    EXPECT_EQ(wide.fittingSize, (Size{12.0 + 28.0 + 202.0 + 12.0, 64.0}));
}

TEST_F(LayoutShortcutsLegendViewTest, LiesOnADarkPlateWithAFineBorder)
{
    const auto drawing = legend({{"1", "Full", true}});
    const auto& plate = shapeAt(drawing.content, 0);
    EXPECT_EQ(plate.rect, (ViewRect{0.0, 0.0, drawing.fittingSize.width, drawing.fittingSize.height}));
    EXPECT_EQ(plate.cornerRadius, 10.0);
    EXPECT_EQ(plate.backing, Backing::solid);
    EXPECT_EQ(plate.fill, Color::black().withAlpha(0.78));
    EXPECT_EQ(shapeAt(drawing.content, 1).stroke, (Stroke{Color::white().withAlpha(0.12), 1.0}));
}

TEST_F(LayoutShortcutsLegendViewTest, KeepsTheGivenOrder)
{
    EXPECT_THAT(textsOf(legend({{"3", "C", false}, {"1", "A", false}}).content),
                ElementsAre("Jump to layout", "3", "C", "1", "A"));
}

TEST_F(LayoutShortcutsLegendViewTest, MeasuresEveryTextOnce)
{
    desktop.journal.clear();
    legend({{"1", "Full", true}, {"2", "Centered", false}, {"3", "Side", false}});
    EXPECT_EQ(desktop.journal.count("TextMetrics.measure"), 4U);
}

} // namespace
} // namespace quorvel
