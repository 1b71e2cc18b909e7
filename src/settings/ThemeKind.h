#pragma once

#include <string>
#include <string_view>
#include <tuple>

#include "base/FocusSwitcherDisplayMode.h"
#include "base/LabelPosition.h"
#include "settings/MoveResizeTheme.h"
#include "settings/SettingsKeys.h"
#include "settings/SwitcherTheme.h"
#include "settings/Theme.h"

namespace quorvel {

// One field of a theme: its name in the stored document, and the setting that it is a snapshot of.
template <class Record, class Value>
struct ThemeField {
    std::string_view name;
    Value Record::* member;
    std::string_view settingsKey;
    bool (*isKnown)(std::string_view text) = nullptr; // for texts that name a case of an enumeration
};

template <class Record, class Value>
ThemeField(std::string_view, Value Record::*, std::string_view) -> ThemeField<Record, Value>;
template <class Record, class Value>
ThemeField(std::string_view, Value Record::*, std::string_view, bool (*)(std::string_view))
    -> ThemeField<Record, Value>;

inline bool namesLabelPosition(std::string_view text)
{
    return labelPositionFromRawValue(text).has_value();
}

inline bool namesFocusSwitcherDisplayMode(std::string_view text)
{
    return focusSwitcherDisplayModeFromRawValue(text).has_value();
}

// Which of the themes that share an id a deletion takes away.
enum class ThemeDeletion { firstMatch, everyMatch };

// Everything in which the kinds of theme differ. `fields` are in the order of the stored document.
template <class Record>
struct ThemeKind;

template <>
struct ThemeKind<Theme> {
    static constexpr std::string_view storageKey = settingsKeys::savedThemes;
    static constexpr std::string_view plural = "themes"; // in log lines
    static constexpr ThemeDeletion deletion = ThemeDeletion::firstMatch;
    static constexpr std::tuple fields{
        ThemeField{"overlayBorderColorHex", &Theme::overlayBorderColorHex, settingsKeys::overlayBorderColor},
        ThemeField{"overlayBackgroundColorHex", &Theme::overlayBackgroundColorHex,
                   settingsKeys::overlayBackgroundColor},
        ThemeField{"overlayBorderWidth", &Theme::overlayBorderWidth, settingsKeys::overlayBorderWidth},
        ThemeField{"overlayBorderRadius", &Theme::overlayBorderRadius, settingsKeys::overlayBorderRadius},
        ThemeField{"textBorderColorHex", &Theme::textBorderColorHex, settingsKeys::textBorderColor},
        ThemeField{"textBackgroundColorHex", &Theme::textBackgroundColorHex, settingsKeys::textBackgroundColor},
        ThemeField{"textBorderWidth", &Theme::textBorderWidth, settingsKeys::textBorderWidth},
        ThemeField{"textColorHex", &Theme::textColorHex, settingsKeys::textColor},
        ThemeField{"textSize", &Theme::textSize, settingsKeys::textSize},
        ThemeField{"textBorderRadius", &Theme::textBorderRadius, settingsKeys::textBorderRadius},
        ThemeField{"isTextBold", &Theme::isTextBold, settingsKeys::isTextBold},
        ThemeField{"labelPositionRaw", &Theme::labelPositionRaw, settingsKeys::labelPosition, namesLabelPosition},
    };
};

template <>
struct ThemeKind<SwitcherTheme> {
    static constexpr std::string_view storageKey = settingsKeys::savedSwitcherThemes;
    static constexpr std::string_view plural = "switcher themes";
    static constexpr ThemeDeletion deletion = ThemeDeletion::everyMatch;
    static constexpr std::tuple fields{
        ThemeField{"overlayBorderColorHex", &SwitcherTheme::overlayBorderColorHex, settingsKeys::wsBorderColor},
        ThemeField{"overlayBackgroundColorHex", &SwitcherTheme::overlayBackgroundColorHex,
                   settingsKeys::wsBackgroundColor},
        ThemeField{"overlayBorderWidth", &SwitcherTheme::overlayBorderWidth, settingsKeys::wsBorderWidth},
        ThemeField{"overlayBorderRadius", &SwitcherTheme::overlayBorderRadius, settingsKeys::wsBorderRadius},
        ThemeField{"textBorderColorHex", &SwitcherTheme::textBorderColorHex, settingsKeys::wsTextBorderColor},
        ThemeField{"textBackgroundColorHex", &SwitcherTheme::textBackgroundColorHex,
                   settingsKeys::wsTextBackgroundColor},
        ThemeField{"textBorderWidth", &SwitcherTheme::textBorderWidth, settingsKeys::wsTextBorderWidth},
        ThemeField{"textColorHex", &SwitcherTheme::textColorHex, settingsKeys::wsTextColor},
        ThemeField{"textSize", &SwitcherTheme::textSize, settingsKeys::wsTextSize},
        ThemeField{"textBorderRadius", &SwitcherTheme::textBorderRadius, settingsKeys::wsTextBorderRadius},
        ThemeField{"isTextBold", &SwitcherTheme::isTextBold, settingsKeys::wsTextBold},
        ThemeField{"labelPositionRaw", &SwitcherTheme::labelPositionRaw, settingsKeys::wsLabelPosition,
                   namesLabelPosition},
        ThemeField{"showWindowInfo", &SwitcherTheme::showWindowInfo, settingsKeys::showWindowInfo},
        ThemeField{"defaultDisplayModeRaw", &SwitcherTheme::defaultDisplayModeRaw, settingsKeys::fsDefaultDisplayMode,
                   namesFocusSwitcherDisplayMode},
    };
};

template <>
struct ThemeKind<MoveResizeTheme> {
    static constexpr std::string_view storageKey = settingsKeys::savedMoveResizeThemes;
    static constexpr std::string_view plural = "move/resize themes";
    static constexpr ThemeDeletion deletion = ThemeDeletion::everyMatch;
    static constexpr std::tuple fields{
        ThemeField{"selectionColorHex", &MoveResizeTheme::selectionColorHex, settingsKeys::mrSelectionColorHex},
        ThemeField{"selectionBorderWidth", &MoveResizeTheme::selectionBorderWidth,
                   settingsKeys::mrSelectionBorderWidth},
        ThemeField{"selectionGlow", &MoveResizeTheme::selectionGlow, settingsKeys::mrSelectionGlow},
        ThemeField{"snapTargetColorHex", &MoveResizeTheme::snapTargetColorHex, settingsKeys::mrSnapTargetColorHex},
        ThemeField{"snapTargetBorderWidth", &MoveResizeTheme::snapTargetBorderWidth,
                   settingsKeys::mrSnapTargetBorderWidth},
        ThemeField{"snapTargetGlow", &MoveResizeTheme::snapTargetGlow, settingsKeys::mrSnapTargetGlow},
        ThemeField{"cornerRadius", &MoveResizeTheme::cornerRadius, settingsKeys::mrCornerRadius},
        ThemeField{"snapEnabled", &MoveResizeTheme::snapEnabled, settingsKeys::mrSnapEnabled},
        ThemeField{"snapThreshold", &MoveResizeTheme::snapThreshold, settingsKeys::mrSnapThreshold},
        ThemeField{"snapResistance", &MoveResizeTheme::snapResistance, settingsKeys::mrSnapResistance},
        ThemeField{"moveStep", &MoveResizeTheme::moveStep, settingsKeys::mrMoveStep},
    };
};

// Calls `visit` with every field of a kind, in order.
template <class Record, class Visitor>
void forEachThemeField(Visitor visit)
{
    std::apply([&visit](const auto&... field) { (visit(field), ...); }, ThemeKind<Record>::fields);
}

} // namespace quorvel
