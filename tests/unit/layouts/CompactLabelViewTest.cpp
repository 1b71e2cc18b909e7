#include "tests/unit/layouts/OverlayViewsFixture.h"

namespace quorvel {
namespace {

using testing::ElementsAre;

class CompactLabelViewTest : public OverlayViewsFixture {};

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

} // namespace
} // namespace quorvel
