#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#import <Foundation/Foundation.h>
#include <gtest/gtest.h>

#include "platform/macos/Strings.h"

namespace quorvel::macos {
namespace {

namespace fs = std::filesystem;

const fs::path build = QUORVEL_BUILD;

NSDictionary* propertyList(const fs::path& file)
{
    return [NSDictionary dictionaryWithContentsOfFile:nsString((build / file).string())];
}

std::string text(NSDictionary* list, NSString* key)
{
    return utf8([list objectForKey:key]);
}

bool isTrue(NSDictionary* list, NSString* key)
{
    return [[list objectForKey:key] boolValue] != NO;
}

// Of a PNG file, which has them behind its signature and the name of its first part; 0 if it is none.
std::array<std::uint32_t, 2> pixels(const fs::path& file)
{
    constexpr std::size_t sizeOffset = 16;
    constexpr std::size_t length = 24;
    std::string head(length, '\0');
    std::ifstream(build / file, std::ios::binary).read(head.data(), length);
    if (!head.starts_with("\x89PNG")) {
        return {};
    }
    std::array<std::uint32_t, 2> sides{};
    for (std::size_t byte = 0; byte < 8; ++byte) {
        sides[byte / 4] = sides[byte / 4] << 8U | static_cast<std::uint8_t>(head[sizeOffset + byte]);
    }
    return sides;
}

using Sides = std::array<std::uint32_t, 2>;

TEST(BundleContents, TheApplicationLivesInTheMenuBarOnly)
{
    EXPECT_TRUE(isTrue(propertyList("Contents/Info.plist"), @"LSUIElement"));
}

TEST(BundleContents, TheVersionIsTheProjects)
{
    NSDictionary* const info = propertyList("Contents/Info.plist");
    EXPECT_EQ(text(info, @"CFBundleShortVersionString"), QUORVEL_VERSION);
    EXPECT_EQ(text(info, @"CFBundleVersion"), QUORVEL_VERSION);
}

TEST(BundleContents, TheApplicationHasNamesAndAnIcon)
{
    NSDictionary* const info = propertyList("Contents/Info.plist");
    EXPECT_EQ(text(info, @"CFBundleIdentifier"), "io.quorvel.Quorvel");
    EXPECT_EQ(text(info, @"CFBundleExecutable"), "Quorvel");
    EXPECT_EQ(text(info, @"CFBundleIconFile"), "Quorvel");
    EXPECT_EQ(text(info, @"LSMinimumSystemVersion"), "13.3");
}

TEST(BundleContents, EachPermissionIsExplained)
{
    NSDictionary* const info = propertyList("Contents/Info.plist");
    EXPECT_FALSE(text(info, @"NSAccessibilityUsageDescription").empty());
    EXPECT_FALSE(text(info, @"NSInputMonitoringUsageDescription").empty());
}

TEST(BundleContents, TheEndOfTheProgramIsNeverSkipped)
{
    NSDictionary* const info = propertyList("Contents/Info.plist");
    EXPECT_FALSE(isTrue(info, @"NSSupportsSuddenTermination"));
    EXPECT_FALSE(isTrue(info, @"NSSupportsAutomaticTermination"));
}

// Other applications' windows are out of reach from a sandbox.
TEST(BundleContents, NothingIsEntitledThatABundleWithoutForeignLibrariesNeeds)
{
    NSDictionary* const entitlements = propertyList("Entitlements.plist");
    ASSERT_NE(entitlements, nil);
    EXPECT_FALSE(isTrue(entitlements, @"com.apple.security.app-sandbox"));
    EXPECT_FALSE(isTrue(entitlements, @"com.apple.security.cs.disable-library-validation"));
}

TEST(BundleContents, ImagesAreThereForPlainAndForFineScreens)
{
    const fs::path resources = "Contents/Resources";
    EXPECT_EQ(pixels(resources / "MenuBarIcon.png"), (Sides{22, 22}));
    EXPECT_EQ(pixels(resources / "MenuBarIcon@2x.png"), (Sides{44, 44}));
    EXPECT_EQ(pixels(resources / "ColorLogoTransparent.png"), (Sides{128, 128}));
    EXPECT_EQ(pixels(resources / "ColorLogoTransparent@2x.png"), (Sides{256, 256}));
}

TEST(BundleContents, TheIconHasAllSizesThatAMacAsksFor)
{
    for (const std::uint32_t points : {16U, 32U, 128U, 256U, 512U}) {
        const auto name = "icon_" + std::to_string(points) + "x" + std::to_string(points);
        EXPECT_EQ(pixels(fs::path("Quorvel.iconset") / (name + ".png")), (Sides{points, points}));
        EXPECT_EQ(pixels(fs::path("Quorvel.iconset") / (name + "@2x.png")), (Sides{2 * points, 2 * points}));
    }
}

} // namespace
} // namespace quorvel::macos
