#pragma once

#include <semaphore>

#include "e2e/ModesTest.h"
#include "support/Interposer.h"

namespace quorvel::e2e {

// The program with somebody between it and the server, who sees each request and each event.
class InterposedTest : public ModesTest {
protected:
    InterposedTest();
    ~InterposedTest() override;

    void startInterposed();

    // Until the program has handled everything up to now, and what that caused.
    void settle();

    xtest::Interposer interposer{display.server};

private:
    std::counting_semaphore<> answers{0};
};

} // namespace quorvel::e2e
