#include <string>
#include <vector>

#include "contract/ContractTest.h"
#include "platform/Log.h"

namespace quorvel::contract {
namespace {

class LogContract : public ContractTest {
protected:
    Log& log = port(&ContractPorts::log);
};

TEST_F(LogContract, EachLineArrivesWholeAndAtOnce)
{
    const auto pieces = desktop->logged([this] {
        log.line("Registered hotkey id=1 keyCode=31 modifiers=768");
        log.line("código de error → -25211");
    });

    EXPECT_EQ(pieces, (std::vector<std::string>{"Registered hotkey id=1 keyCode=31 modifiers=768\n",
                                                "código de error → -25211\n"}));
}

// The lines hold titles, and a title holds what its program likes.
TEST_F(LogContract, NothingWithinALineEndsIt)
{
    const auto pieces = desktop->logged([this] { log.line("A\nB\r\x1B[2J\tC\x7F"); });
    EXPECT_EQ(pieces, std::vector<std::string>{"A B  [2J C \n"});
}

TEST_F(LogContract, AnEmptyLineIsALine)
{
    EXPECT_EQ(desktop->logged([this] { log.line(""); }), std::vector<std::string>{"\n"});
}

} // namespace
} // namespace quorvel::contract
