#include "platform/x11/painting/OpaqueList.h"

#include <gtest/gtest.h>

#include "tests/unit/x11/painting/Painting.h"

namespace quorvel::x11 {
namespace {

RoundedRectCommand solid(RoundedRectCommand command)
{
    command.backing = Backing::solid;
    return command;
}

const RoundedRectCommand& shape(const DrawList& list, std::size_t index = 0)
{
    return std::get<RoundedRectCommand>(list.commands.at(index));
}

TEST(OpaqueList, AnOpenShapeBecomesARing)
{
    auto command = filled({0, 0, 100, 100}, Color::bytes(0, 212, 255));
    command.stroke = Stroke{Color::bytes(255, 255, 0), 2.0};
    command.shadow = Shadow{Color::black(), 10.0};
    const auto list = withoutBlending({{command}});
    ASSERT_EQ(list.commands.size(), 1U);
    EXPECT_FALSE(shape(list).fill);
    EXPECT_FALSE(shape(list).shadow);
    EXPECT_EQ(shape(list).stroke->color, Color::bytes(255, 255, 0));
}

TEST(OpaqueList, AnOpenShapeWithoutStrokeGoes)
{
    EXPECT_TRUE(withoutBlending({{filled({0, 0, 100, 100}, Color::white())}}).commands.empty());
}

TEST(OpaqueList, AnInvisibleStrokeGoes)
{
    EXPECT_TRUE(withoutBlending({{stroked({0, 0, 100, 100}, Color::clear(), 2.0)}}).commands.empty());
    EXPECT_TRUE(withoutBlending({{stroked({0, 0, 100, 100}, Color::white(), 0.0)}}).commands.empty());
}

TEST(OpaqueList, ATransparentStrokeBecomesDarkerAndOpaque)
{
    const auto list = withoutBlending({{stroked({0, 0, 100, 100}, Color::white().withAlpha(0.5), 2.0)}});
    const auto color = shape(list).stroke->color;
    EXPECT_EQ(color.alpha, 1.0);
    EXPECT_NEAR(color.red, 0.555, 0.01);
}

TEST(OpaqueList, ATransparentSolidShapeBecomesDarkAndOpaque)
{
    const auto list = withoutBlending({{solid(filled({0, 0, 100, 100}, Color::bytes(136, 255, 255, 0)))}});
    const auto fill = shape(list).fill.value();
    EXPECT_EQ(fill.alpha, 1.0);
    EXPECT_LT(fill.red, 0.2);
    EXPECT_LT(fill.green, 0.2);
}

TEST(OpaqueList, ASolidShapeWithoutFillGetsOne)
{
    const auto list = withoutBlending({{solid(stroked({0, 0, 100, 100}, Color::white(), 2.0))}});
    EXPECT_EQ(shape(list).fill->alpha, 1.0);
}

TEST(OpaqueList, AnOpaqueSolidShapeKeepsItsColor)
{
    const auto list = withoutBlending({{solid(filled({0, 0, 100, 100}, Color::bytes(1, 2, 3)))}});
    EXPECT_EQ(shape(list).fill, Color::bytes(1, 2, 3));
}

TEST(OpaqueList, WhatLiesOnASolidShapeStaysAsItIs)
{
    auto badge = filled({10, 10, 20, 20}, Color::white().withAlpha(0.15), 5.0);
    auto name = text("Halves", {40, 10, 50, 20});
    name.shadow = Shadow{Color::black(), 2.0};
    const auto list = withoutBlending({{solid(filled({0, 0, 100, 100}, Color::black().withAlpha(0.78))), badge, name}});
    ASSERT_EQ(list.commands.size(), 3U);
    EXPECT_EQ(list.commands[1], DrawCommand(badge));
    EXPECT_EQ(list.commands[2], DrawCommand(name));
}

TEST(OpaqueList, FreeTextGetsADarkPlate)
{
    const auto list = withoutBlending({{text("Editor", {40, 10, 50, 20})}});
    ASSERT_EQ(list.commands.size(), 2U);
    EXPECT_TRUE(shape(list).rect.contains(ViewRect{40, 10, 50, 20}));
    EXPECT_EQ(shape(list).fill->alpha, 1.0);
    EXPECT_LT(shape(list).fill->red, 0.2);
}

TEST(OpaqueList, NoTextGetsNoPlate)
{
    EXPECT_EQ(withoutBlending({{text("", {40, 10, 50, 20})}}).commands.size(), 1U);
}

TEST(OpaqueList, AnOpenRingIsNoBackgroundForText)
{
    const auto list =
        withoutBlending({{stroked({0, 0, 100, 100}, Color::white(), 2.0), text("Editor", {40, 10, 50, 20})}});
    EXPECT_EQ(list.commands.size(), 3U);
}

} // namespace
} // namespace quorvel::x11
