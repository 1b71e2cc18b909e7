#include "preferences/ShortcutRow.h"

#include <array>

#include "settings/Settings.h"

namespace quorvel {

namespace {

constexpr std::string_view layoutMode = "Layout Mode";
constexpr std::string_view focusSwitcherMode = "Focus Switcher";
constexpr std::string_view moveResizeMode = "Move/Resize Mode";

using namespace shortcutKeys;

constexpr std::array<ShortcutRow, 16> rows{{
    {layoutMode, "Activate", activateOverlay, ShortcutReading::main},
    {layoutMode, "Next Layout", nextLayout, ShortcutReading::navigation},
    {layoutMode, "Previous Layout", previousLayout, ShortcutReading::navigation},
    {layoutMode, "Next Screen", nextScreen, ShortcutReading::navigation},
    {layoutMode, "Previous Screen", previousScreen, ShortcutReading::navigation},
    {focusSwitcherMode, "Activate", focusSwitcher, ShortcutReading::main},
    {focusSwitcherMode, "Toggle Minimized", fsToggleMinimized, ShortcutReading::mode},
    {focusSwitcherMode, "Toggle Frames / List", fsToggleAllWindows, ShortcutReading::mode},
    {moveResizeMode, "Activate", moveResize, ShortcutReading::main},
    {moveResizeMode, "Move Left", mrMoveLeft, ShortcutReading::mode},
    {moveResizeMode, "Move Right", mrMoveRight, ShortcutReading::mode},
    {moveResizeMode, "Move Up", mrMoveUp, ShortcutReading::mode},
    {moveResizeMode, "Move Down", mrMoveDown, ShortcutReading::mode},
    {moveResizeMode, "Cycle Windows", mrCycleWindows, ShortcutReading::mode},
    {moveResizeMode, "Minimize", mrMinimize, ShortcutReading::mode},
    {moveResizeMode, "Exit Mode", mrExitMode, ShortcutReading::mode},
}};

} // namespace

std::span<const ShortcutRow> shortcutRows()
{
    return rows;
}

Shortcut shownShortcut(const ShortcutRow& row, const Settings& settings)
{
    return {.keyCode = settings.boundInteger(row.keys.keyCode), .modifiers = settings.boundInteger(row.keys.modifiers)};
}

Shortcut effectiveShortcut(const ShortcutRow& row, const Settings& settings)
{
    switch (row.reading) {
    case ShortcutReading::main:
        return mainShortcut(settings, row.keys);
    case ShortcutReading::navigation:
        return navigationShortcut(settings, row.keys);
    case ShortcutReading::mode:
        break;
    }
    return {.keyCode = modeKeyCode(settings, row.keys.keyCode), .modifiers = settings.boundInteger(row.keys.modifiers)};
}

} // namespace quorvel
