#include <array>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/Action.h"
#include "base/FocusSwitcherDisplayMode.h"
#include "base/LabelPosition.h"

namespace quorvel {
namespace {

TEST(Action, KeepsItsOrder)
{
    const std::vector actions{Action::cancel,           Action::activateOverlay, Action::moveResizeFrontmost,
                              Action::moveClientWindow, Action::nextLayout,      Action::previousLayout,
                              Action::jumpToLayout,     Action::nextScreen,      Action::previousScreen,
                              Action::focusSwitcher};
    for (std::size_t index = 0; index < actions.size(); ++index) {
        EXPECT_EQ(static_cast<std::size_t>(actions[index]), index);
    }
}

TEST(LabelPosition, HasNineCasesRowByRow)
{
    std::vector<std::string> rawValues;
    rawValues.reserve(allLabelPositions.size());
    for (const auto position : allLabelPositions) {
        rawValues.emplace_back(rawValue(position));
    }
    EXPECT_EQ(rawValues, (std::vector<std::string>{"topLeft", "top", "topRight", "leading", "center", "trailing",
                                                   "bottomLeft", "bottom", "bottomRight"}));
}

TEST(LabelPosition, IsReadBackFromItsRawValue)
{
    for (const auto position : allLabelPositions) {
        EXPECT_EQ(labelPositionFromRawValue(rawValue(position)), position);
    }
}

TEST(LabelPosition, AnyOtherTextGivesNone)
{
    for (const auto* text : {"Top", "TOPLEFT", "middle", " top", "top ", ""}) {
        EXPECT_EQ(labelPositionFromRawValue(text), std::nullopt) << text;
    }
}

TEST(FocusSwitcherDisplayMode, IsStoredAndShownUnderFixedTexts)
{
    EXPECT_EQ(rawValue(FocusSwitcherDisplayMode::framesAndLabels), "frames");
    EXPECT_EQ(rawValue(FocusSwitcherDisplayMode::windowList), "list");
    EXPECT_EQ(title(FocusSwitcherDisplayMode::framesAndLabels), "Show frames and labels");
    EXPECT_EQ(title(FocusSwitcherDisplayMode::windowList), "Show window list");
}

TEST(FocusSwitcherDisplayMode, IsReadBackFromItsRawValueOnly)
{
    for (const auto mode : allFocusSwitcherDisplayModes) {
        EXPECT_EQ(focusSwitcherDisplayModeFromRawValue(rawValue(mode)), mode);
    }
    EXPECT_EQ(focusSwitcherDisplayModeFromRawValue("List"), std::nullopt);
    EXPECT_EQ(focusSwitcherDisplayModeFromRawValue(""), std::nullopt);
}

} // namespace
} // namespace quorvel
