#pragma once

#include "e2e/ModesTest.h"

namespace quorvel::e2e {

// The program on a display whose monitors are outputs of their own, as on a real machine.
class OutputsTest : public ModesTest {
protected:
    OutputsTest() : ModesTest({.kind = isPossible() ? kind : xtest::XServer::Kind::virtualOutput}) {}

    void SetUp() override
    {
        if (!isPossible()) {
            GTEST_SKIP() << "needs root and the dummy video driver";
        }
    }

private:
    static constexpr auto kind = xtest::XServer::Kind::dummyOutputs;

    static bool isPossible() { return xtest::XServer::isAvailable(kind); }
};

} // namespace quorvel::e2e
