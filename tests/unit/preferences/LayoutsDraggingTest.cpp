#include <gmock/gmock.h>

#include "tests/unit/preferences/LayoutsPaneFixture.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::EndsWith;

using Source = LayoutsPaneModel::DragSource;
using Move = LayoutsPaneModel::RowMove;

constexpr std::string_view sixLetters = R"({"layouts": [
    {"id": "A", "name": "A", "windows": []}, {"id": "B", "name": "B", "windows": []},
    {"id": "C", "name": "C", "windows": []}, {"id": "D", "name": "D", "windows": []},
    {"id": "E", "name": "E", "windows": []}, {"id": "F", "name": "F", "windows": []}
]})";

class LayoutsDraggingTest : public LayoutsPaneTest {
protected:
    LayoutsDraggingTest() : LayoutsPaneTest(sixLetters) { select({"A", "B", "C", "D", "E", "F"}); }

    // The order after a drop, in a word.
    std::string dropped(const Texts& items, std::size_t beforeRow)
    {
        select({"A", "B", "C", "D", "E", "F"});
        pane.drop(Source::selectedTable, items, beforeRow);
        std::string order;
        for (const auto& id : storedSelection()) {
            order += id;
        }
        return order;
    }
};

TEST_F(LayoutsDraggingTest, ARowLandsWhereItIsDropped)
{
    EXPECT_EQ(dropped({"0"}, 2), "BACDEF");
    EXPECT_THAT(pane.content().selectedSelection, ElementsAre(1U));
    EXPECT_THAT(selected(), ElementsAre("B", "A", "C", "D", "E", "F"));
    EXPECT_EQ(dropped({"5"}, 0), "FABCDE");
    EXPECT_EQ(dropped({"0"}, 6), "BCDEFA");
}

TEST_F(LayoutsDraggingTest, SeveralRowsBecomeOneBlockInTheirOldOrder)
{
    EXPECT_EQ(dropped({"0", "2"}, 4), "BDACEF");
    EXPECT_THAT(pane.content().selectedSelection, ElementsAre(2U, 3U));
    EXPECT_EQ(dropped({"2", "0"}, 4), "BDACEF");
    EXPECT_EQ(dropped({"1", "4"}, 3), "ACBEDF");
    EXPECT_THAT(pane.content().selectedSelection, ElementsAre(2U, 3U));
}

TEST_F(LayoutsDraggingTest, ADropOnItsOwnPlaceChangesNoOrder)
{
    EXPECT_EQ(dropped({"3"}, 3), "ABCDEF");
    EXPECT_EQ(dropped({"3"}, 4), "ABCDEF");
    EXPECT_EQ(dropped({"2", "3"}, 3), "ABCDEF");
    for (std::size_t row = 0; row <= 6; ++row) {
        EXPECT_EQ(dropped({"0", "1", "2", "3", "4", "5"}, row), "ABCDEF");
    }
}

TEST_F(LayoutsDraggingTest, ItemsThatNameNoRowAreIgnored)
{
    EXPECT_EQ(dropped({"x", "1"}, 0), "BACDEF");
    EXPECT_EQ(dropped({"1", "1", "6", "-1", "1.0", " 2", ""}, 0), "BACDEF");
    EXPECT_EQ(dropped({"1"}, 99), "ACDEFB");
    EXPECT_FALSE(pane.drop(Source::selectedTable, {"x"}, 0));
    EXPECT_FALSE(pane.drop(Source::selectedTable, {}, 0));
}

TEST_F(LayoutsDraggingTest, ADropFromElsewhereIsRefused)
{
    EXPECT_TRUE(pane.acceptsDrop(Source::selectedTable));
    EXPECT_FALSE(pane.acceptsDrop(Source::elsewhere));
    EXPECT_FALSE(pane.drop(Source::elsewhere, {"1"}, 0));
    EXPECT_THAT(selected(), ElementsAre("A", "B", "C", "D", "E", "F"));
}

TEST_F(LayoutsDraggingTest, SelectedRowsGoUpAndDownAsOneBlock)
{
    pane.selectSelected({1});
    pane.moveSelected(Move::down);
    EXPECT_THAT(storedSelection(), ElementsAre("A", "C", "B", "D", "E", "F"));
    pane.moveSelected(Move::down);
    pane.moveSelected(Move::up);
    EXPECT_THAT(storedSelection(), ElementsAre("A", "C", "B", "D", "E", "F"));
    EXPECT_THAT(pane.content().selectedSelection, ElementsAre(2));
    pane.selectSelected({1, 4});
    pane.moveSelected(Move::up);
    EXPECT_THAT(storedSelection(), ElementsAre("C", "E", "A", "B", "D", "F"));
    EXPECT_THAT(pane.content().selectedSelection, ElementsAre(0, 1));
    pane.selectSelected({2, 4});
    pane.moveSelected(Move::down);
    EXPECT_THAT(storedSelection(), ElementsAre("C", "E", "B", "F", "A", "D"));
}

TEST_F(LayoutsDraggingTest, AtTheEndsABlockStaysAndOthersAreGathered)
{
    const auto asStored = settings.stringArray("selectedLayoutIDs");
    settings.remove("selectedLayoutIDs");
    pane.moveSelected(Move::up);
    pane.selectSelected({0, 1});
    pane.moveSelected(Move::up);
    pane.selectSelected({4, 5});
    pane.moveSelected(Move::down);
    EXPECT_FALSE(settings.isStored("selectedLayoutIDs")) << "nothing has moved";
    EXPECT_EQ(selected(), asStored);
    pane.selectSelected({0, 2});
    pane.moveSelected(Move::up);
    EXPECT_THAT(storedSelection(), ElementsAre("A", "C", "B", "D", "E", "F"));
    pane.selectSelected({3, 5});
    pane.moveSelected(Move::down);
    EXPECT_THAT(storedSelection(), ElementsAre("A", "C", "B", "E", "D", "F"));
}

TEST_F(LayoutsDraggingTest, ARowTravelsAsItsNumberUnderAPrivateType)
{
    EXPECT_EQ(pane.dragItem(4), "4");
    EXPECT_THAT(std::string(pane.dragType()), EndsWith(".layouts.selected.row"));
}

} // namespace
} // namespace quorvel
