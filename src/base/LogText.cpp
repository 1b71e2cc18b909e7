#include "base/LogText.h"

#include <fmt/format.h>

namespace quorvel {

std::string logText(double value)
{
    auto text = fmt::format("{}", value);
    if (text.find_first_not_of("-0123456789") == std::string::npos) {
        text += ".0";
    }
    return text;
}

std::string logText(const Size& size)
{
    return "(" + logText(size.width) + ", " + logText(size.height) + ")";
}

} // namespace quorvel
