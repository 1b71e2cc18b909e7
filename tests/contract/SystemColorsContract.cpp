#include <algorithm>

#include "contract/ContractTest.h"
#include "platform/SystemColors.h"

namespace quorvel::contract {
namespace {

class SystemColorsContract : public ContractTest {
protected:
    SystemColors& colors = port(&ContractPorts::systemColors);
};

TEST_F(SystemColorsContract, EveryColourIsOpaque)
{
    for (const auto& color : {colors.accent(), colors.blue(), colors.green(), colors.yellow()}) {
        EXPECT_EQ(color.alpha, 1.0);
    }
}

TEST_F(SystemColorsContract, ColoursLookAsTheyAreCalled)
{
    const auto blue = colors.blue();
    EXPECT_GT(blue.blue, std::max(blue.red, blue.green));
    const auto green = colors.green();
    EXPECT_GT(green.green, std::max(green.red, green.blue));
    const auto yellow = colors.yellow();
    EXPECT_GT(std::min(yellow.red, yellow.green), yellow.blue);
}

TEST_F(SystemColorsContract, TheAccentStaysWhileNobodyChangesIt)
{
    EXPECT_EQ(colors.accent(), colors.accent());
}

} // namespace
} // namespace quorvel::contract
