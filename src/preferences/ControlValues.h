#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "base/FatalError.h"
#include "platform/FormModel.h"

namespace quorvel {

// The value that a control of that kind sends; any other is a programming error of a shell.
template <class Value>
const Value& sentValue(std::string_view id, const ControlValue& value)
{
    const auto* const sent = std::get_if<Value>(&value);
    if (sent == nullptr) {
        fatalError("The control \"" + std::string(id) + "\" sent a value of a wrong type");
    }
    return *sent;
}

[[noreturn]] inline void reportUnknownControl(std::string_view id)
{
    fatalError("There is no control \"" + std::string(id) + "\"");
}

} // namespace quorvel
