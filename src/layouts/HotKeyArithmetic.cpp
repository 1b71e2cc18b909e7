#include "layouts/HotKeyArithmetic.h"

#include <limits>

#include "base/FatalError.h"

namespace quorvel {

std::uint32_t checkedSum(std::uint32_t a, std::uint32_t b)
{
    if (b > std::numeric_limits<std::uint32_t>::max() - a) {
        fatalError("Arithmetic overflow in a hot key id");
    }
    return a + b;
}

std::uint32_t hotKeySignature(std::u16string_view applicationName)
{
    std::uint32_t signature = 0;
    for (const char16_t unit : applicationName) {
        signature = checkedSum(signature << 8U, unit);
    }
    return signature;
}

} // namespace quorvel
