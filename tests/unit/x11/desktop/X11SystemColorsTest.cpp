#include "platform/x11/desktop/X11SystemColors.h"

#include <chrono>

#include <gtest/gtest.h>

#include "support/TemporaryDirectory.h"

namespace quorvel::x11 {
namespace {

class X11SystemColorsTest : public testing::Test {
protected:
    // Each change a second later than the one before, as the file's time tells it.
    void write(const char* text)
    {
        const auto file = directory.write("kdeglobals", text);
        time += std::chrono::seconds(1);
        std::filesystem::last_write_time(file, time);
    }

    xtest::TemporaryDirectory directory;
    std::filesystem::file_time_type time = std::filesystem::file_time_type::clock::now();
    X11SystemColors colors{directory.path() / "kdeglobals"};
};

TEST_F(X11SystemColorsTest, TheAccentIsBlueWithoutPlasmasSettings)
{
    EXPECT_EQ(colors.accent(), colors.blue());
}

TEST_F(X11SystemColorsTest, TheAccentIsTheChosenOne)
{
    write("[Colors:Selection]\nBackgroundNormal=61,174,233\n[General]\nAccentColor=146,110,228\n");
    EXPECT_EQ(colors.accent(), Color::bytes(146, 110, 228));
}

TEST_F(X11SystemColorsTest, ElseTheAccentIsTheSelectionsColor)
{
    write("[General]\nName=Breeze\n[Colors:Selection]\nBackgroundNormal=61,174,233\n");
    EXPECT_EQ(colors.accent(), Color::bytes(61, 174, 233));
}

TEST_F(X11SystemColorsTest, AnAlphaIsLeftOut)
{
    write("[General]\nAccentColor=146,110,228,100\n");
    EXPECT_EQ(colors.accent(), Color::bytes(146, 110, 228));
}

TEST_F(X11SystemColorsTest, FollowsChanges)
{
    write("[General]\nAccentColor=146,110,228\n");
    EXPECT_EQ(colors.accent(), Color::bytes(146, 110, 228));
    write("[General]\nAccentColor=1,2,3\n");
    EXPECT_EQ(colors.accent(), Color::bytes(1, 2, 3));
    std::filesystem::remove(directory.path() / "kdeglobals");
    EXPECT_EQ(colors.accent(), colors.blue());
}

TEST_F(X11SystemColorsTest, NonsenseIsNoColor)
{
    for (const auto* const text :
         {"[General]\nAccentColor=1,2\n", "[General]\nAccentColor=300,2,3\n", "[General]\nAccentColor=-1,2,3\n",
          "[General]\nAccentColor=red\n", "[General]\nAccentColor=\n", "nonsense", "\xFF\xFE"}) {
        write(text);
        EXPECT_EQ(colors.accent(), colors.blue()) << text;
    }
}

} // namespace
} // namespace quorvel::x11
