#include <cmath>

#include <gtest/gtest.h>

#include "platform/x11/painting/PixelAlignment.h"
#include "platform/x11/painting/X11TextMetrics.h"
#include "tests/unit/x11/painting/Painting.h"

namespace quorvel::x11 {
namespace {

constexpr PixelSize canvas{300, 60};
constexpr ViewRect wholeCanvas{0, 0, 300, 60};

PixelRect boundsOf(const TextCommand& command)
{
    return inkBounds(Painting().paint(canvas, {command})).value();
}

TEST(TextPainting, CentresTheTextInItsBox)
{
    const auto bounds = boundsOf(text("HIH", wholeCanvas));
    EXPECT_NEAR(bounds.x + bounds.width / 2.0, 150.0, 1.0);
}

TEST(TextPainting, AlignsAtEitherSideOfTheBox)
{
    auto command = text("HIH", {40, 0, 200, 60});
    command.alignment = TextAlignment::leading;
    EXPECT_NEAR(boundsOf(command).x, 41, 2);
    command.alignment = TextAlignment::trailing;
    EXPECT_NEAR(boundsOf(command).maxX(), 239, 2);
}

TEST(TextPainting, CentresTheLineVerticallyByTheFont)
{
    const TextLayouts layouts("DejaVu Sans");
    const auto metrics = layouts.lineMetrics({.size = 20.0});
    const auto bounds = boundsOf(text("HIH", wholeCanvas));
    const double baseline = 30.0 + (metrics.ascent - metrics.descent) / 2.0;
    EXPECT_NEAR(bounds.maxY(), baseline, 1.0);
    EXPECT_GT(bounds.y, 15);
}

TEST(TextPainting, LettersOfAllHeightsStandOnOneBaseline)
{
    EXPECT_EQ(boundsOf(text("x", wholeCanvas)).maxY(), boundsOf(text("H", wholeCanvas)).maxY());
    EXPECT_GT(boundsOf(text("g", wholeCanvas)).maxY(), boundsOf(text("H", wholeCanvas)).maxY());
}

TEST(TextPainting, TheBaselineDoesNotDependOnTheTextsFont)
{
    // An ideograph may come from another font, whose line is taller.
    const auto plain = Painting().paint(canvas, {text("H", wholeCanvas)});
    const auto mixed = inkBounds(Painting().paint(canvas, {text("H\u2603\u0E48", wholeCanvas)})).value();
    EXPECT_LE(std::abs(inkBounds(plain)->y - mixed.y), 6);
}

TEST(TextPainting, HeavierWeightsHaveMoreInk)
{
    const auto ink = [](FontWeight weight) {
        auto command = text("Window", wholeCanvas);
        command.font.weight = weight;
        return inkAmount(Painting().paint(canvas, {command}));
    };
    EXPECT_GT(ink(FontWeight::bold), ink(FontWeight::regular) * 1.15);
    EXPECT_GE(ink(FontWeight::semibold), ink(FontWeight::regular));
}

TEST(TextPainting, ABiggerFontIsBigger)
{
    auto command = text("H", wholeCanvas);
    const auto small = boundsOf(command);
    command.font.size = 40.0;
    EXPECT_NEAR(boundsOf(command).height, small.height * 2, 2);
}

TEST(TextPainting, CutsLongTextInsideTheBoxWithAnEllipsis)
{
    auto command = text("The quick brown fox jumps over the lazy dog", {50, 0, 100, 60});
    command.alignment = TextAlignment::leading;
    const auto bounds = boundsOf(command);
    EXPECT_GE(bounds.x, 49);
    EXPECT_LE(bounds.maxX(), 151);
    // An ellipsis ends the line with ink on the baseline only.
    EXPECT_GT(bounds.width, 75);
    const auto cut = Painting().paint(canvas, {command});
    const auto dots = Painting().paint(canvas, {text("\u2026", {0, 0, 40, 60})});
    const auto dotsBounds = inkBounds(dots).value();
    for (int y = 0; y < dotsBounds.y - 1; ++y) {
        for (int x = bounds.maxX() - dotsBounds.width; x < bounds.maxX(); ++x) {
            EXPECT_EQ(alphaAt(cut, x, y), 0U) << x << ", " << y;
        }
    }
}

TEST(TextPainting, TextAsWideAsMeasuredIsNotCut)
{
    const Painting painting;
    const X11TextMetrics metrics(painting.layouts);
    for (const std::string characters : {"A", "Jump to layout", "Two side by side", "\u00C5ngstr\u00F6m", "Ta. To"}) {
        auto command = text(characters, wholeCanvas);
        command.alignment = TextAlignment::leading;
        const auto whole = painting.paint(canvas, {command});
        command.box.width = metrics.measure(characters, command.font).width;
        EXPECT_EQ(painting.paint(canvas, {command}), whole) << characters;
    }
}

TEST(TextPainting, TextAsWideAsMeasuredIsNotCutWhenItIsScaled)
{
    const Painting painting;
    const X11TextMetrics metrics(painting.layouts);
    for (const double scale : {0.6, 0.63, 0.7, 0.75, 0.8, 0.9, 1.5, 2.0}) {
        for (const double size : {11.0, 12.8, 20.0}) {
            auto command = text("Example Window Title", {7, 0, 280, 60});
            command.alignment = TextAlignment::leading;
            command.font.size = size;
            const auto paint = [&] {
                const PixelSize pixels{static_cast<int>(std::ceil(canvas.width * scale)),
                                       static_cast<int>(std::ceil(canvas.height * scale))};
                return painting.paint(pixels, alignedToPixels({{command}}, {300, 60}, pixels, scale).commands, scale);
            };
            const auto whole = paint();
            command.box.width = metrics.measure(command.text, command.font).width;
            EXPECT_EQ(paint(), whole) << scale << ", " << size;
            EXPECT_NEAR(inkBounds(whole)->width, scale * boundsOf(command).width, 2.0) << scale << ", " << size;
        }
    }
}

TEST(TextPainting, InvalidBytesLookLikeReplacementCharacters)
{
    const Painting painting;
    EXPECT_EQ(painting.paint(canvas, {text("a\xFF"
                                           "b\xC3",
                                           wholeCanvas)}),
              painting.paint(canvas, {text("a\uFFFD"
                                           "b\uFFFD",
                                           wholeCanvas)}));
}

TEST(TextPainting, LineBreaksStayOnOneLine)
{
    const auto one = boundsOf(text("H", wholeCanvas));
    EXPECT_LE(boundsOf(text("H\nH", wholeCanvas)).height, one.height * 2);
}

TEST(TextPainting, DrawsNothingForNoText)
{
    EXPECT_FALSE(inkBounds(Painting().paint(canvas, {text("", wholeCanvas)})));
}

TEST(TextPainting, UsesTheColorPremultiplied)
{
    auto command = text("\u2588", wholeCanvas);
    command.color = Color::bytes(255, 255, 0, 128);
    const auto image = Painting().paint(canvas, {command});
    const auto bounds = inkBounds(image).value();
    EXPECT_EQ(image.at(bounds.x + bounds.width / 2, bounds.y + bounds.height / 2), 0x80808000U);
}

TEST(TextPainting, AShadowSurroundsTheLetters)
{
    auto command = text("H", wholeCanvas);
    const auto plain = boundsOf(command);
    command.shadow = Shadow{Color::black().withAlpha(0.5), 6.0};
    const auto image = Painting().paint(canvas, {command});
    const auto shadowed = inkBounds(image).value();
    EXPECT_LE(shadowed.x, plain.x - 3);
    EXPECT_GE(shadowed.maxX(), plain.maxX() + 3);
    EXPECT_LE(shadowed.y, plain.y - 3);
    EXPECT_GE(shadowed.maxY(), plain.maxY() + 3);
    const auto besideLetter = image.at(plain.x - 2, plain.y + plain.height / 2);
    EXPECT_GT(alphaOf(besideLetter), 10U);
    EXPECT_EQ(besideLetter & 0xFFFFFFU, 0U);
}

} // namespace
} // namespace quorvel::x11
