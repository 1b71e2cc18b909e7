#include "platform/macos/overlays/DrawListView.h"

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include "macos/fakes/DisplayServer.h"
#include "macos/fakes/Drawing.h"
#include "platform/macos/Retained.h"
#include "platform/macos/overlays/DrawListPainting.h"

namespace quorvel::macos {
namespace {

const Color red = Color::bytes(255, 0, 0);
const Color glass = Color::bytes(10, 20, 30, 128);

class DrawListViewTest : public testing::Test {
protected:
    void SetUp() override
    {
        fakes::startDisplayServer();
        fakes::takeDrawn();
        view = Retained<QuorvelDrawListView*>::adopt(
            [[QuorvelDrawListView alloc] initWithFrame:NSMakeRect(0.0, 0.0, 200.0, 100.0)]);
    }

    std::vector<fakes::Drawn> drawn(const DrawCommand& command)
    {
        [view.get() setContent:{{command}}];
        [view.get() drawRect:[view.get() bounds]];
        return fakes::takeDrawn();
    }

    Retained<QuorvelDrawListView*> view;
};

RoundedRectCommand filled(const ViewRect& rect, const Color& color)
{
    RoundedRectCommand shape;
    shape.rect = rect;
    shape.fill = color;
    return shape;
}

RoundedRectCommand outlined(const ViewRect& rect, double width)
{
    RoundedRectCommand shape;
    shape.rect = rect;
    shape.stroke = Stroke{red, width};
    return shape;
}

TextCommand text(const std::string& content, const ViewRect& box)
{
    TextCommand command;
    command.text = content;
    command.box = box;
    command.font.size = 20.0;
    return command;
}

bool isRect(NSRect rect, double x, double y, double width, double height)
{
    return NSEqualRects(rect, NSMakeRect(x, y, width, height));
}

TEST_F(DrawListViewTest, HasItsOriginAtTheTopAndLetsClicksThrough)
{
    EXPECT_TRUE([view.get() isFlipped]);
    EXPECT_FALSE([view.get() isOpaque]);
    EXPECT_TRUE([view.get() wantsLayer]);
    EXPECT_TRUE([view.get() clipsToBounds]);
    EXPECT_EQ([view.get() hitTest:NSMakePoint(20.0, 20.0)], nil);
}

TEST_F(DrawListViewTest, AskToBeDrawnAgainWithNewContent)
{
    [view.get() setNeedsDisplay:NO];

    [view.get() setContent:{}];

    EXPECT_TRUE([view.get() needsDisplay]);
}

TEST_F(DrawListViewTest, AShapeIsFilledAndThenStroked)
{
    auto shape = outlined({1.5, 1.5, 97.0, 47.0}, 3.0);
    shape.cornerRadius = 8.0;
    shape.fill = glass;

    const auto result = drawn(shape);

    ASSERT_EQ(result.size(), 2U);
    EXPECT_EQ(result[0].fill, glass);
    EXPECT_TRUE(isRect(result[0].rect, 1.5, 1.5, 97.0, 47.0));
    EXPECT_EQ(result[1].stroke, (Stroke{red, 3.0}));
    EXPECT_TRUE(isRect(result[1].rect, 1.5, 1.5, 97.0, 47.0));
    EXPECT_TRUE(result[1].hasCurves);
    EXPECT_EQ(result[0].shadow, std::nullopt);
}

TEST_F(DrawListViewTest, AnOutlineWithoutFillOrOfNoWidthIsNotDrawn)
{
    EXPECT_EQ(drawn(outlined({0.0, 0.0, 10.0, 10.0}, 2.0)).size(), 1U);
    EXPECT_TRUE(drawn(outlined({0.0, 0.0, 10.0, 10.0}, 0.0)).empty());
}

TEST_F(DrawListViewTest, AShapeCastsOneShadow)
{
    const Shadow glow{red.withAlpha(0.6), 12.0};
    auto shape = outlined({0.0, 0.0, 40.0, 20.0}, 2.0);
    shape.fill = glass;
    shape.shadow = glow;

    const auto result = drawn(shape);

    ASSERT_EQ(result.size(), 2U);
    EXPECT_EQ(result[0].shadow, glow);
    EXPECT_EQ(result[1].shadow, glow);
}

TEST_F(DrawListViewTest, AShadowEndsWithItsShape)
{
    auto shape = filled({0.0, 0.0, 40.0, 20.0}, glass);
    shape.shadow = Shadow{red, 3.0};
    drawn(shape);

    shape.shadow = std::nullopt;

    EXPECT_EQ(drawn(shape).at(0).shadow, std::nullopt);
}

TEST_F(DrawListViewTest, TheOuterEdgesOfAShapeLieBetweenPixels)
{
    const auto shape = filled({0.7, 10.4, 50.0, 30.0}, red);

    paint({{shape}}, 1.0);
    EXPECT_TRUE(isRect(fakes::takeDrawn().at(0).rect, 1.0, 10.0, 50.0, 30.0));

    paint({{shape}}, 2.0);
    EXPECT_TRUE(isRect(fakes::takeDrawn().at(0).rect, 0.5, 10.5, 50.0, 30.0));
}

TEST_F(DrawListViewTest, TextStandsInTheMiddleOfItsBox)
{
    auto editor = text("Editor", {10.0, 20.0, 100.0, 60.0});
    editor.font.weight = FontWeight::bold;
    editor.color = glass;
    editor.shadow = Shadow{Color::black(), 2.0};

    const auto result = drawn(editor);

    ASSERT_EQ(result.size(), 1U);
    EXPECT_EQ(result[0].text, "Editor");
    EXPECT_EQ(result[0].fill, glass);
    EXPECT_EQ(result[0].shadow, (Shadow{Color::black(), 2.0}));
    EXPECT_EQ(NSMinX(result[0].rect), 10.0);
    EXPECT_EQ(NSWidth(result[0].rect), 100.0);
    EXPECT_NEAR(NSMidY(result[0].rect), 50.0, 1.0);
    EXPECT_GE(NSHeight(result[0].rect), 20.0);
}

TEST_F(DrawListViewTest, TextStaysOnOneLine)
{
    EXPECT_EQ(drawn(text("One\nTwo", {0.0, 0.0, 100.0, 20.0})).at(0).text, "One Two");
}

TEST_F(DrawListViewTest, WhatNoScreenCanShowIsLeftOut)
{
    EXPECT_TRUE(drawn(filled({0.0, 0.0, 1e12, 20.0}, red)).empty());

    auto tiny = text("A", {0.0, 0.0, 10.0, 10.0});
    tiny.font.size = 0.0;
    EXPECT_TRUE(drawn(tiny).empty());
}

} // namespace
} // namespace quorvel::macos
