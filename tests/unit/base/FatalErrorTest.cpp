#include "base/FatalError.h"

#include <csignal>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/FatalErrors.h"

namespace quorvel {
namespace {

TEST(FatalErrorDeathTest, PrintsItsMessageAndAborts)
{
    EXPECT_EXIT(fatalError("the frame has no screen"), testing::KilledBySignal(SIGABRT),
                "Fatal error: the frame has no screen\n");
}

TEST(FatalError, CanBeInterceptedUntilTheTokenGoes)
{
    EXPECT_EQ(fatalErrorOf([] { fatalError("seen"); }), "seen");
    EXPECT_EXIT(fatalError("not seen"), testing::KilledBySignal(SIGABRT), "Fatal error: not seen\n");
}

} // namespace
} // namespace quorvel
