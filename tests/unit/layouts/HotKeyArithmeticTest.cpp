#include "layouts/HotKeyArithmetic.h"

#include <limits>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "base/FatalError.h"

namespace quorvel {
namespace {

constexpr auto largest = std::numeric_limits<std::uint32_t>::max();

class HotKeyArithmetic : public testing::Test {
protected:
    Subscription interception =
        interceptFatalErrors([](std::string_view message) { throw std::runtime_error(std::string(message)); });
};

TEST_F(HotKeyArithmetic, TheSignatureIsTheCodeOfTheLastFourCharacters)
{
    EXPECT_EQ(hotKeySignature(u"Quorvel"), 0x7276656CU);
    EXPECT_EQ(hotKeySignature(u"Quorvel"), 1920361836U);
    EXPECT_EQ(hotKeySignature(u"rvel"), 0x7276656CU);
    EXPECT_EQ(hotKeySignature(u"Q"), 0x51U);
    EXPECT_EQ(hotKeySignature(u""), 0U);
}

TEST_F(HotKeyArithmetic, AWideCharacterCarriesIntoTheOneBeforeIt)
{
    EXPECT_EQ(hotKeySignature(u"a\u0142"), 0x6242U);
}

TEST_F(HotKeyArithmetic, ASignatureThatOverflowsIsFatal)
{
    EXPECT_THROW(hotKeySignature(u"\u00FF\u00FF\u00FF\u0100"), std::runtime_error);
    EXPECT_EQ(hotKeySignature(u"\u00FF\u00FF\u00FF\u00FF"), largest);
}

TEST_F(HotKeyArithmetic, ASumThatDoesNotFitIsFatal)
{
    EXPECT_EQ(checkedSum(largest - 1, 1), largest);
    EXPECT_THROW(checkedSum(largest, 1), std::runtime_error);
}

} // namespace
} // namespace quorvel
