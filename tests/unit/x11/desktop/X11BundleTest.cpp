#include "platform/x11/desktop/X11Bundle.h"

#include <cstdlib>

#include <gmock/gmock.h>

#include "support/TemporaryDirectory.h"

namespace quorvel::x11 {
namespace {

class X11BundleTest : public testing::Test {
protected:
    xtest::TemporaryDirectory first;
    xtest::TemporaryDirectory second;
    X11Bundle bundle{{first.path(), second.path()}};
};

TEST_F(X11BundleTest, TheFirstDirectoryThatHasAResourceWins)
{
    second.write("layouts.json", "second");
    EXPECT_EQ(bundle.resource("layouts", "json").value(), "second");
    first.write("layouts.json", "first");
    EXPECT_EQ(bundle.resource("layouts", "json").value(), "first");
}

TEST_F(X11BundleTest, AMissingResourceIsNoError)
{
    EXPECT_EQ(bundle.resource("layouts", "json").value(), std::nullopt);
}

TEST_F(X11BundleTest, AResourceThatCannotBeReadSaysWhy)
{
    std::filesystem::create_directory(first.path() / "layouts.json");
    EXPECT_THAT(bundle.resource("layouts", "json").error(), testing::EndsWith("layouts.json: Is a directory"));
}

TEST_F(X11BundleTest, ResourcesMayBeLargeAndHoldAnyByte)
{
    std::string content(100'000, '\0');
    content.back() = '\xFF';
    first.write("data.bin", content);
    EXPECT_EQ(bundle.resource("data", "bin").value(), content);
}

TEST_F(X11BundleTest, ChoosesTheNextLargerSizeOfAnImage)
{
    for (const auto* const name : {"images/Icon-16.png", "images/Icon-24.png", "images/Icon-48.png"}) {
        first.write(name, "");
    }
    const auto fileFor = [&](int pixels) { return bundle.imageFile("Icon", pixels).filename().string(); };
    EXPECT_EQ(fileFor(10), "Icon-16.png");
    EXPECT_EQ(fileFor(16), "Icon-16.png");
    EXPECT_EQ(fileFor(17), "Icon-24.png");
    EXPECT_EQ(fileFor(48), "Icon-48.png");
    EXPECT_EQ(fileFor(200), "Icon-48.png");
    EXPECT_TRUE(bundle.imageFile("Logo", 16).empty());
}

TEST_F(X11BundleTest, AnImageOfAnySizeIsThere)
{
    EXPECT_EQ(bundle.image("Icon"), std::nullopt);
    first.write("images/Icon-64.png", "");
    EXPECT_EQ(bundle.image("Icon"), (Image{"Icon", false}));
}

TEST_F(X11BundleTest, TheGuidesAddressIsEmptyUntilItIsInstalled)
{
    EXPECT_EQ(bundle.userGuideAddress(), "");
    second.write("share/quorvel/layouts.json", "");
    second.write("share/doc/quorvel/guide/index.html", "");
    const X11Bundle installed({first.path(), second.path() / "share/quorvel"});
    EXPECT_EQ(installed.userGuideAddress(),
              "file://" + (second.path() / "share/doc/quorvel/guide/index.html").string());
}

TEST(X11BundleDirectories, AreTheBuildTreesOrTheInstalledOnes)
{
    unsetenv("QUORVEL_RESOURCES");
    const X11Bundle bundle(X11Bundle::standardDirectories());
    EXPECT_TRUE(bundle.resource("layouts", "json").value());
    EXPECT_TRUE(bundle.image("MenuBarIcon"));
    EXPECT_TRUE(bundle.image("ColorLogoTransparent"));
    EXPECT_THAT(bundle.userGuideAddress(), testing::EndsWith("/share/doc/quorvel/guide/index.html"));
}

TEST(X11BundleDirectories, TheEnvironmentsComesFirst)
{
    const xtest::TemporaryDirectory chosen;
    chosen.write("layouts.json", "chosen");
    setenv("QUORVEL_RESOURCES", chosen.path().c_str(), 1);
    const X11Bundle bundle(X11Bundle::standardDirectories());
    unsetenv("QUORVEL_RESOURCES");
    EXPECT_EQ(bundle.resource("layouts", "json").value(), "chosen");
    EXPECT_TRUE(bundle.image("MenuBarIcon"));
}

} // namespace
} // namespace quorvel::x11
