// Documents of the three kinds of themes.

#include <string>

#include "platform/simulated/SimulatedDesktop.h"
#include "settings/BasicThemeStore.h"
#include "settings/Settings.h"
#include "settings/ThemeCoding.h"
#include "settings/ThemeSettings.h"
#include "tests/fuzz/FuzzTarget.h"

namespace quorvel {

namespace {

template <class Record>
void fuzzKind(std::string_view text)
{
    const auto themes = decodeThemes<Record>(text);
    if (!themes) {
        require(!themes.error().empty(), "a refusal has a reason");
        return;
    }
    const auto written = encodeThemes(*themes);
    if (!written) {
        return; // it holds a number that JSON cannot
    }
    const auto again = decodeThemes<Record>(*written);
    require(again.has_value(), "what was written can be read");
    require(again == themes, "themes survive a round trip");
    SimulatedDesktop desktop;
    desktop.journal.pause();
    Settings settings(desktop.userDefaults);
    for (const auto& theme : *themes) {
        applyTheme(theme, settings);
        const auto captured = captureTheme<Record>(settings, theme.name, theme.createdAt);
        applyTheme(captured, settings);
    }
}

} // namespace

void fuzz(std::span<const std::uint8_t> input)
{
    fuzzKind<Theme>(textOf(input));
    fuzzKind<SwitcherTheme>(textOf(input));
    fuzzKind<MoveResizeTheme>(textOf(input));
}

} // namespace quorvel
