#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "base/Action.h"
#include "layouts/WindowModel.h"
#include "system/ScreensModel.h"

namespace quorvel {

class WindowElementModel;

// What an action is to be done with. The meaning of an argument follows from its place; whoever carries the action out
// asks for the type that belongs there, and one of another type counts as missing.
using ActionArgument = std::variant<std::monostate, std::int64_t, std::string, WindowModel, ScreensModel,
                                    std::shared_ptr<WindowElementModel>>;
using ActionArguments = std::vector<ActionArgument>;

using ActionHandler = std::function<void(Action, const ActionArguments&)>;

template <class Argument>
std::optional<Argument> argumentAt(const ActionArguments& arguments, std::size_t place)
{
    const auto* argument = place < arguments.size() ? std::get_if<Argument>(&arguments[place]) : nullptr;
    return argument != nullptr ? std::optional(*argument) : std::nullopt;
}

// Null where there is none.
inline std::shared_ptr<WindowElementModel> elementAt(const ActionArguments& arguments, std::size_t place)
{
    return argumentAt<std::shared_ptr<WindowElementModel>>(arguments, place).value_or(nullptr);
}

} // namespace quorvel
