#include "platform/x11/painting/IconPainting.h"

#include <gtest/gtest.h>

#include "platform/x11/painting/ImageSurface.h"
#include "support/TemporaryDirectory.h"
#include "tests/unit/x11/painting/Painting.h"

namespace quorvel::x11 {
namespace {

PixelImage filledImage(PixelSize size, Pixel pixel)
{
    PixelImage image(size);
    std::ranges::fill(image.pixels, pixel);
    return image;
}

class IconPaintingTest : public testing::Test {
protected:
    // A picture of 20 by 20 pixels whose left half is red and whose right half is empty.
    std::filesystem::path halfRed()
    {
        auto image = Painting().paint({20, 20}, {filled({0, 0, 10, 20}, Color::bytes(255, 0, 0))});
        const auto file = directory.path() / "icon.png";
        EXPECT_EQ(cairo_surface_write_to_png(imageSurface(image).get(), file.c_str()), CAIRO_STATUS_SUCCESS);
        return file;
    }

    xtest::TemporaryDirectory directory;
};

TEST_F(IconPaintingTest, KeepsThePicturesColors)
{
    auto image = filledImage({20, 20}, 0xFF0000FF);
    paintIcon(image, halfRed(), std::nullopt);
    EXPECT_EQ(image.at(4, 10), 0xFFFF0000U);
    EXPECT_EQ(image.at(15, 10), 0xFF0000FFU);
}

TEST_F(IconPaintingTest, ATemplateHasTheGivenColor)
{
    PixelImage image({20, 20});
    paintIcon(image, halfRed(), Color::bytes(0, 255, 0));
    EXPECT_EQ(image.at(4, 10), 0xFF00FF00U);
    EXPECT_EQ(image.at(15, 10), 0U);
}

TEST_F(IconPaintingTest, FitsAndCentresThePicture)
{
    PixelImage image({60, 40});
    paintIcon(image, halfRed(), std::nullopt);
    EXPECT_EQ(image.at(8, 20), 0U);
    EXPECT_EQ(image.at(15, 20), 0xFFFF0000U);
    EXPECT_EQ(image.at(25, 5), 0xFFFF0000U);
    EXPECT_EQ(image.at(25, 35), 0xFFFF0000U);
    EXPECT_EQ(image.at(35, 20), 0U);
}

TEST_F(IconPaintingTest, AFileThatIsNoPictureDrawsNothing)
{
    auto image = filledImage({20, 20}, 0xFF123456);
    const auto before = image;
    paintIcon(image, directory.path() / "missing.png", std::nullopt);
    paintIcon(image, directory.write("text.png", "text"), std::nullopt);
    paintIcon(image, {}, std::nullopt);
    EXPECT_EQ(image, before);
}

TEST_F(IconPaintingTest, TheColorCanBeReadOnItsBackground)
{
    EXPECT_LT(readableColor(filledImage({4, 4}, 0xFFE0E0E0)).green, 0.3);
    EXPECT_GT(readableColor(filledImage({4, 4}, 0xFF303030)).green, 0.8);
    EXPECT_GT(readableColor(filledImage({4, 4}, 0)).green, 0.8);
    EXPECT_LT(readableColor(filledImage({4, 4}, 0xFFFFFF00)).green, 0.3); // yellow is bright, blue is not
    EXPECT_GT(readableColor(filledImage({4, 4}, 0xFF0000FF)).green, 0.8);
}

} // namespace
} // namespace quorvel::x11
