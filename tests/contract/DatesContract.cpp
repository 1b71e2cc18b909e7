#include <cmath>
#include <string>

#include "contract/ContractTest.h"
#include "platform/Dates.h"

namespace quorvel::contract {
namespace {

class DatesContract : public ContractTest {
protected:
    Dates& dates = port(&ContractPorts::dates);
};

TEST_F(DatesContract, TheClockCountsSecondsAndDoesNotRunBackwards)
{
    const auto before = dates.now();
    const auto after = dates.now();

    EXPECT_TRUE(std::isfinite(before.secondsSince2001));
    EXPECT_GE(before.secondsSince2001, 757'382'400.0);
    EXPECT_GE(after.secondsSince2001, before.secondsSince2001);
}

TEST_F(DatesContract, ADateTellsItsDayAndItsYear)
{
    constexpr double noonOnJune17In2025 = 771'854'400.0;

    const auto text = dates.mediumText({noonOnJune17In2025});

    EXPECT_NE(text.find("17"), std::string::npos) << text;
    EXPECT_NE(text.find("25"), std::string::npos) << text;
    EXPECT_EQ(text.find(':'), std::string::npos) << text;
}

} // namespace
} // namespace quorvel::contract
