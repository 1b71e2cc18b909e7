#include "app/OverlayNavigation.h"

#include <limits>

#include "base/FatalError.h"
#include "settings/ShortcutSettings.h"

namespace quorvel {

namespace {

struct NavigationCommand {
    Action action;
    ShortcutKeys keys;
    KeyCode builtInKey;
};

constexpr NavigationCommand navigationCommands[] = {
    {Action::nextLayout, shortcutKeys::nextLayout, keyCodes::downArrow},
    {Action::previousLayout, shortcutKeys::previousLayout, keyCodes::upArrow},
    {Action::nextScreen, shortcutKeys::nextScreen, keyCodes::rightArrow},
    {Action::previousScreen, shortcutKeys::previousScreen, keyCodes::leftArrow},
};

template <class Limit>
bool fits(std::int64_t value)
{
    return value >= 0 && value <= std::numeric_limits<Limit>::max();
}

Shortcut checkedShortcut(const Settings& settings, const ShortcutKeys& keys)
{
    const auto shortcut = navigationShortcut(settings, keys);
    if (!fits<std::uint16_t>(shortcut.keyCode) || !fits<std::uint32_t>(shortcut.modifiers)) {
        fatalError("A stored shortcut of the layout overlay is out of range");
    }
    return shortcut;
}

} // namespace

std::optional<Action> overlayNavigation(const Settings& settings, KeyCode keyCode, std::uint32_t modifiers)
{
    std::optional<Action> match;
    for (const auto& command : navigationCommands) {
        const auto configured = checkedShortcut(settings, command.keys);
        const auto effective = configured.keyCode != 0 ? configured : Shortcut{command.builtInKey, 0};
        if (!match && effective == Shortcut{keyCode, modifiers}) {
            match = command.action;
        }
    }
    return match;
}

} // namespace quorvel
