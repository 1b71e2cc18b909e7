#include "layouts/MinimizedWindowsListView.h"

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"

// In the simulated font a character is 0.65 of the size wide where bold or semibold and 0.6 where regular, and a line
// is 1.2 of it high, both rounded up.

namespace quorvel {
namespace {

using testing::ElementsAre;

constexpr Size largeRoom{2000, 1000};

class MinimizedWindowsListViewTest : public testing::Test {
protected:
    static MinimizedWindowsListView viewOf(std::vector<MinimizedWindowEntry> entries)
    {
        return {
            .entries = std::move(entries),
            .title = "Minimized Windows",
            .bgColor = Color::bytes(1, 1, 1),
            .borderColor = Color::bytes(2, 2, 2),
            .titleColor = Color::bytes(3, 3, 3),
            .labelColor = Color::bytes(4, 4, 4),
            .labelBorderColor = Color::bytes(5, 5, 5),
            .appNameColor = Color::bytes(6, 6, 6),
            .windowTitleColor = Color::bytes(7, 7, 7),
        };
    }

    static std::vector<MinimizedWindowEntry> entries(std::size_t count, const std::string& title = "Inbox")
    {
        std::vector<MinimizedWindowEntry> result;
        result.reserve(count);
        for (std::size_t i = 0; i < count; ++i) {
            result.push_back({i, std::string(1, static_cast<char>('A' + i)), "Mail", title});
        }
        return result;
    }

    FittedDrawing draw(const MinimizedWindowsListView& view, const Size& room = largeRoom) const
    {
        return view.body({desktop.textMetrics, desktop.systemColors}, room);
    }

    static std::vector<RoundedRectCommand> shapesOf(const DrawList& list)
    {
        return commandsOf<RoundedRectCommand>(list);
    }
    static std::vector<TextCommand> textsOf(const DrawList& list) { return commandsOf<TextCommand>(list); }

    // The rows' badges, without the plate.
    static std::vector<ViewRect> badgesOf(const DrawList& list)
    {
        std::vector<ViewRect> badges;
        for (const auto& shape : shapesOf(list)) {
            badges.push_back(shape.rect);
        }
        badges.erase(badges.begin());
        return badges;
    }

    SimulatedDesktop desktop;

private:
    template <class Command>
    static std::vector<Command> commandsOf(const DrawList& list)
    {
        std::vector<Command> commands;
        for (const auto& each : list.commands) {
            if (const auto* command = std::get_if<Command>(&each)) {
                commands.push_back(*command);
            }
        }
        return commands;
    }
};

TEST_F(MinimizedWindowsListViewTest, ThePlateIsRoundedFilledBorderedAndCastsAShadow)
{
    const auto drawing = draw(viewOf(entries(1)));
    const auto plate = shapesOf(drawing.content).front();
    EXPECT_EQ(plate.rect.insetBy(-0.5, -0.5), (ViewRect{0, 0, drawing.fittingSize.width, drawing.fittingSize.height}));
    EXPECT_EQ(plate.cornerRadius, 9.5); // 10 at its outer edge
    EXPECT_EQ(plate.fill, Color::bytes(1, 1, 1));
    EXPECT_EQ(plate.stroke, (Stroke{Color::bytes(2, 2, 2), 1.0}));
    EXPECT_EQ(plate.shadow->color, Color::black().withAlpha(0.5));
    EXPECT_EQ(plate.backing, Backing::solid);
}

TEST_F(MinimizedWindowsListViewTest, TheTitleComesFirst)
{
    const auto drawing = draw(viewOf(entries(2)));
    const auto title = textsOf(drawing.content).front();
    EXPECT_EQ(title.text, "Minimized Windows");
    EXPECT_EQ(title.font, (Font{14.0, FontWeight::bold}));
    EXPECT_EQ(title.color, Color::bytes(3, 3, 3));
    EXPECT_EQ(title.box.origin(), (ViewPoint{16, 16}));
}

TEST_F(MinimizedWindowsListViewTest, ARowHasItsLetterOnABadgeThenTheNames)
{
    const auto drawing = draw(viewOf(entries(1)));
    const auto badge = shapesOf(drawing.content).at(1);
    // The title is 17 high, with 4 below it and 6 to the row; the letter is 22 high, with 4 around it.
    EXPECT_EQ(badge.rect.insetBy(-0.5, -0.5), (ViewRect{16, 43, 36, 30}));
    EXPECT_EQ(badge.fill, Color::white().withAlpha(0.1));
    EXPECT_EQ(badge.stroke, (Stroke{Color::bytes(5, 5, 5), 1.0}));
    const auto texts = textsOf(drawing.content);
    ASSERT_EQ(texts.size(), 4U);
    EXPECT_EQ(texts[1].text, "A");
    EXPECT_EQ(texts[1].font, (Font{18.0, FontWeight::bold}));
    EXPECT_EQ(texts[1].color, Color::bytes(4, 4, 4));
    EXPECT_EQ(texts[1].box, (ViewRect{16, 43, 36, 30}));
    EXPECT_EQ(texts[2].text, "Mail");
    EXPECT_EQ(texts[2].color, Color::bytes(6, 6, 6));
    EXPECT_EQ(texts[2].box, (ViewRect{60, 43, 34, 30}));
    EXPECT_EQ(texts[3].text, "Inbox");
    EXPECT_EQ(texts[3].color, Color::bytes(7, 7, 7));
    EXPECT_EQ(texts[3].box, (ViewRect{102, 43, 39, 30}));
}

TEST_F(MinimizedWindowsListViewTest, ItFitsWhatItShows)
{
    EXPECT_EQ(draw(viewOf(entries(1, "A rather long title"))).fittingSize, (Size{102 + 149 + 16, 43 + 30 + 16}));
    EXPECT_EQ(draw(viewOf(entries(3))).fittingSize.height, 43 + 3 * 30 + 2 * 6 + 16);
}

TEST_F(MinimizedWindowsListViewTest, ATitleWiderThanTheRowsDecidesTheWidth)
{
    EXPECT_EQ(draw(viewOf({{0, "A", "", ""}})).fittingSize.width, 16 + 155 + 16);
}

TEST_F(MinimizedWindowsListViewTest, WithoutEntriesOnlyTheTitleIsLeft)
{
    const auto drawing = draw(viewOf({}));
    EXPECT_EQ(textsOf(drawing.content).size(), 1U);
    EXPECT_EQ(drawing.fittingSize, (Size{16 + 155 + 16, 16 + 17 + 16}));
}

TEST_F(MinimizedWindowsListViewTest, NamesAndTitlesOfAllRowsBeginAtOneLine)
{
    const auto drawing = draw(viewOf({{0, "A", "Mail", "Inbox"}, {1, "B", "Terminal", "Shell"}}));
    const auto texts = textsOf(drawing.content);
    EXPECT_EQ(texts[2].box.x, texts[5].box.x);
    EXPECT_EQ(texts[3].box.x, texts[6].box.x);
}

TEST_F(MinimizedWindowsListViewTest, LongTitlesKeepToAWidth)
{
    const auto drawing = draw(viewOf(entries(1, std::string(300, 'x'))));
    EXPECT_EQ(textsOf(drawing.content)[3].box.width, 420);
}

TEST_F(MinimizedWindowsListViewTest, TitlesGiveWayInNarrowRoomsThenNames)
{
    auto view = viewOf({{0, "A", std::string(30, 'n'), std::string(300, 't')}});
    auto texts = textsOf(draw(view, {400, 1000}).content);
    EXPECT_EQ(texts[2].box.width, 180);
    EXPECT_EQ(texts[3].box.maxX(), 384);
    view.title = "T";
    texts = textsOf(draw(view, {200, 1000}).content);
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts[2].box.maxX(), 184);
    EXPECT_EQ(draw(view, {200, 1000}).fittingSize.width, 200);
}

TEST_F(MinimizedWindowsListViewTest, ALongListGoesOnInFurtherColumns)
{
    const Size room{1000, 300}; // for six rows
    const auto drawing = draw(viewOf(entries(13)), room);
    EXPECT_LE(drawing.fittingSize.height, room.height);
    EXPECT_LE(drawing.fittingSize.width, room.width);
    const auto badges = badgesOf(drawing.content);
    EXPECT_EQ(badges[0].x, badges[4].x);
    EXPECT_EQ(badges[5].y, badges[0].y); // three columns of at most five
    EXPECT_EQ(badges[10].y, badges[0].y);
    EXPECT_GT(badges[5].x, textsOf(drawing.content)[3].box.maxX());
    EXPECT_EQ(badges[10].x - badges[5].x, badges[5].x - badges[0].x);
}

TEST_F(MinimizedWindowsListViewTest, AListThatJustFitsHasOneColumn)
{
    const auto height = draw(viewOf(entries(8))).fittingSize.height;
    EXPECT_EQ(badgesOf(draw(viewOf(entries(8)), {2000, height}).content)[7].x, 16.5);
    EXPECT_NE(badgesOf(draw(viewOf(entries(8)), {2000, height - 1}).content)[7].x, 16.5);
}

TEST_F(MinimizedWindowsListViewTest, ManyLongTitlesShareTheWidth)
{
    const Size room{900, 300};
    const auto drawing = draw(viewOf(entries(18, std::string(300, 'x'))), room);
    EXPECT_LE(drawing.fittingSize.width, room.width);
    EXPECT_GT(drawing.fittingSize.width, room.width - 10);
}

} // namespace
} // namespace quorvel
