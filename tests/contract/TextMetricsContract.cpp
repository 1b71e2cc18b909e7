#include <cmath>

#include "contract/ContractTest.h"
#include "platform/TextMetrics.h"

namespace quorvel::contract {
namespace {

class TextMetricsContract : public ContractTest {
protected:
    TextMetrics& metrics = port(&ContractPorts::textMetrics);
};

TEST_F(TextMetricsContract, SizesAreWholePoints)
{
    const auto size = metrics.measure("Jump to layout", {.size = 13.3});

    EXPECT_EQ(size.width, std::floor(size.width));
    EXPECT_EQ(size.height, std::floor(size.height));
    EXPECT_GT(size.width, 0.0);
}

TEST_F(TextMetricsContract, LongerTextIsWiderAndNotHigher)
{
    const auto shorter = metrics.measure("Editor", {.size = 20.0});
    const auto longer = metrics.measure("Editor and more", {.size = 20.0});

    EXPECT_GT(longer.width, shorter.width);
    EXPECT_EQ(longer.height, shorter.height);
}

TEST_F(TextMetricsContract, ALargerFontIsWiderAndHigher)
{
    const auto small = metrics.measure("Editor", {.size = 12.0});
    const auto large = metrics.measure("Editor", {.size = 48.0});

    EXPECT_GT(large.width, 3.0 * small.width);
    EXPECT_GT(large.height, 3.0 * small.height);
}

TEST_F(TextMetricsContract, ALineIsAtLeastAsHighAsItsFont)
{
    EXPECT_GE(metrics.measure("Ag", {.size = 30.0}).height, 30.0);
}

TEST_F(TextMetricsContract, NoTextHasNoWidthAndTheHeightOfALine)
{
    const auto size = metrics.measure("", {.size = 20.0});

    EXPECT_EQ(size.width, 0.0);
    EXPECT_EQ(size.height, metrics.measure("Editor", {.size = 20.0}).height);
}

TEST_F(TextMetricsContract, BoldTextIsNotNarrower)
{
    const auto regular = metrics.measure("Minimized Windows", {.size = 20.0, .weight = FontWeight::regular});
    const auto bold = metrics.measure("Minimized Windows", {.size = 20.0, .weight = FontWeight::bold});

    EXPECT_GE(bold.width, regular.width);
}

TEST_F(TextMetricsContract, TextOfAnyScriptAndInvalidBytesCanBeMeasured)
{
    EXPECT_GT(metrics.measure("日本語", {.size = 20.0}).width, 0.0);
    EXPECT_GT(metrics.measure("a\xFF\xFE", {.size = 20.0}).width, metrics.measure("a", {.size = 20.0}).width);
}

} // namespace
} // namespace quorvel::contract
