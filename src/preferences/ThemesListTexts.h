#pragma once

#include <string_view>

#include "settings/MoveResizeTheme.h"
#include "settings/SwitcherTheme.h"
#include "settings/Theme.h"

namespace quorvel {

// What a list can do with a theme besides applying it: delete it after a question, or rename it and delete it at once.
enum class ThemesListStyle { confirmingDeletion, renaming };

// In what the lists of saved themes differ.
struct ThemesListTexts {
    ThemesListStyle style = ThemesListStyle::renaming;
    std::string_view title;
    std::string_view emptySymbol;
    std::string_view emptyLine;
};

template <class Record>
inline constexpr ThemesListTexts themesListTexts;

template <>
inline constexpr ThemesListTexts themesListTexts<Theme>{
    .style = ThemesListStyle::confirmingDeletion,
    .title = "Themes",
    .emptySymbol = "paintbrush",
    .emptyLine = "Save your current Layout appearance settings as a theme to reuse later.",
};

template <>
inline constexpr ThemesListTexts themesListTexts<SwitcherTheme>{
    .style = ThemesListStyle::renaming,
    .title = "Window Switcher Themes",
    .emptySymbol = "paintbrush.pointed",
    .emptyLine = "Save your current Window Switcher appearance settings as a theme to reuse later.",
};

template <>
inline constexpr ThemesListTexts themesListTexts<MoveResizeTheme>{
    .style = ThemesListStyle::renaming,
    .title = "Move/Resize Themes",
    .emptySymbol = "slider.horizontal.3",
    .emptyLine = "Save your current Move/Resize appearance settings as a theme to reuse later.",
};

} // namespace quorvel
