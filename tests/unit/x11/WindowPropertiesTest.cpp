#include "platform/x11/windows/WindowProperties.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace quorvel::x11 {
namespace {

using Values = std::vector<std::uint32_t>;

constexpr Size client{300.0, 200.0};

TEST(WindowProperties, ExtentsComeAsLeftRightTopAndBottom)
{
    EXPECT_EQ(extentsOf(Values{1, 2, 20, 4}), (Extents{1, 2, 20, 4}));
    EXPECT_EQ(extentsOf(Values{1, 2, 20}), std::nullopt);
}

TEST(WindowProperties, ExtentsLargerThanAnyWindowAreNone)
{
    EXPECT_EQ(extentsOf(Values{0, 0, 0x7FFF, 0}), (Extents{0, 0, 0x7FFF, 0}));
    EXPECT_EQ(extentsOf(Values{0, 0, 0x8000, 0}), std::nullopt);
    EXPECT_EQ(extentsOf(Values{0xFFFFFFFF, 0, 0, 0}), std::nullopt);
}

TEST(WindowProperties, AShadowLeavesSomethingOfItsWindow)
{
    EXPECT_EQ(shadowOf(Values{10, 10, 8, 12}, client), (Extents{10, 10, 8, 12}));
    EXPECT_EQ(shadowOf(Values{149, 150, 0, 0}, client), (Extents{149, 150, 0, 0}));
    EXPECT_EQ(shadowOf(Values{150, 150, 0, 0}, client), Extents{});
    EXPECT_EQ(shadowOf(Values{0, 0, 100, 100}, client), Extents{});
    EXPECT_EQ(shadowOf(Values{}, client), Extents{});
}

TEST(WindowProperties, OnlyStepsOfMoreThanAPixelAreSteps)
{
    Values hints(18, 0);
    hints[9] = 6;
    hints[10] = 13;
    EXPECT_FALSE(hasSizeIncrements(hints));
    hints[0] = 1U << 6;
    EXPECT_TRUE(hasSizeIncrements(hints));
    hints[9] = 1;
    hints[10] = 1;
    EXPECT_FALSE(hasSizeIncrements(hints));
    hints.resize(10);
    hints[9] = 6;
    EXPECT_FALSE(hasSizeIncrements(hints));
}

TEST(WindowProperties, AClassIsTwoTexts)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(classNamesOf("xterm\0XTerm\0"sv), (ClassNames{"xterm", "XTerm"}));
    EXPECT_EQ(classNamesOf("xterm\0XTerm"sv), (ClassNames{"xterm", "XTerm"}));
    EXPECT_EQ(classNamesOf("xterm\0XTerm\0more\0"sv), (ClassNames{"xterm", "XTerm"}));
    EXPECT_EQ(classNamesOf("xterm\0"sv), (ClassNames{"xterm", ""}));
    EXPECT_EQ(classNamesOf("xterm"), (ClassNames{"xterm", ""}));
    EXPECT_EQ(classNamesOf(""), ClassNames{});
}

} // namespace
} // namespace quorvel::x11
