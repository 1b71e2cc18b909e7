#include <cctype>
#include <string>

#include "contract/ContractTest.h"
#include "platform/Bundle.h"

namespace quorvel::contract {
namespace {

class BundleContract : public ContractTest {
protected:
    Bundle& bundle = port(&ContractPorts::bundle);
};

TEST_F(BundleContract, AResourceIsReadWhole)
{
    const std::string content("{\"layouts\": []}\n\0é", 19);
    desktop->addResource("sample", "json", content);

    const auto resource = bundle.resource("sample", "json");

    ASSERT_TRUE(resource.has_value());
    EXPECT_EQ(*resource, std::optional(content));
}

TEST_F(BundleContract, AnEmptyResourceIsThere)
{
    desktop->addResource("empty", "json", "");

    const auto resource = bundle.resource("empty", "json");

    ASSERT_TRUE(resource.has_value());
    EXPECT_EQ(*resource, std::optional(std::string()));
}

TEST_F(BundleContract, AMissingResourceIsAbsentAndNoError)
{
    desktop->addResource("sample", "json", "{}");

    const auto otherName = bundle.resource("simple", "json");
    const auto otherExtension = bundle.resource("sample", "txt");

    ASSERT_TRUE(otherName.has_value());
    EXPECT_EQ(*otherName, std::nullopt);
    ASSERT_TRUE(otherExtension.has_value());
    EXPECT_EQ(*otherExtension, std::nullopt);
}

TEST_F(BundleContract, AnUnreadableResourceIsAnErrorWithAText)
{
    desktop->addUnreadableResource("locked", "json");

    const auto resource = bundle.resource("locked", "json");

    ASSERT_FALSE(resource.has_value());
    EXPECT_FALSE(resource.error().empty());
    EXPECT_EQ(resource.error().find('\n'), std::string::npos);
}

TEST_F(BundleContract, TheMenuBarIconIsThereAndNoTemplateByItself)
{
    EXPECT_EQ(bundle.image("MenuBarIcon"), (Image{"MenuBarIcon", false}));
    EXPECT_EQ(bundle.image("NoSuchImage"), std::nullopt);
}

TEST_F(BundleContract, TheVersionIsNumbersBetweenDots)
{
    const auto version = bundle.shortVersion();

    ASSERT_FALSE(version.empty());
    EXPECT_TRUE(std::isdigit(static_cast<unsigned char>(version.front())));
    EXPECT_TRUE(std::isdigit(static_cast<unsigned char>(version.back())));
    EXPECT_EQ(version.find_first_not_of("0123456789."), std::string::npos);
}

} // namespace
} // namespace quorvel::contract
