#pragma once

#include <string_view>

namespace quorvel {

// The name of every setting.
namespace settingsKeys {

inline constexpr std::string_view activateOverlayKeyCode = "activateOverlayKeyCode";
inline constexpr std::string_view activateOverlayModifiers = "activateOverlayModifiers";
inline constexpr std::string_view nextLayoutKeyCode = "nextLayoutKeyCode";
inline constexpr std::string_view nextLayoutModifiers = "nextLayoutModifiers";
inline constexpr std::string_view previousLayoutKeyCode = "previousLayoutKeyCode";
inline constexpr std::string_view previousLayoutModifiers = "previousLayoutModifiers";
inline constexpr std::string_view nextScreenKeyCode = "nextScreenKeyCode";
inline constexpr std::string_view nextScreenModifiers = "nextScreenModifiers";
inline constexpr std::string_view previousScreenKeyCode = "previousScreenKeyCode";
inline constexpr std::string_view previousScreenModifiers = "previousScreenModifiers";
inline constexpr std::string_view focusSwitcherKeyCode = "focusSwitcherKeyCode";
inline constexpr std::string_view focusSwitcherModifiers = "focusSwitcherModifiers";
inline constexpr std::string_view fsToggleMinimizedKeyCode = "fsToggleMinimizedKeyCode";
inline constexpr std::string_view fsToggleMinimizedModifiers = "fsToggleMinimizedModifiers";
inline constexpr std::string_view fsToggleAllWindowsKeyCode = "fsToggleAllWindowsKeyCode";
inline constexpr std::string_view fsToggleAllWindowsModifiers = "fsToggleAllWindowsModifiers";
inline constexpr std::string_view fsPopupPosition = "fsPopupPosition";
inline constexpr std::string_view fsFocusExactWindow = "fsFocusExactWindow";
inline constexpr std::string_view moveResizeKeyCode = "moveResizeKeyCode";
inline constexpr std::string_view moveResizeModifiers = "moveResizeModifiers";
inline constexpr std::string_view mrMoveLeftKeyCode = "mrMoveLeftKeyCode";
inline constexpr std::string_view mrMoveLeftModifiers = "mrMoveLeftModifiers";
inline constexpr std::string_view mrMoveRightKeyCode = "mrMoveRightKeyCode";
inline constexpr std::string_view mrMoveRightModifiers = "mrMoveRightModifiers";
inline constexpr std::string_view mrMoveUpKeyCode = "mrMoveUpKeyCode";
inline constexpr std::string_view mrMoveUpModifiers = "mrMoveUpModifiers";
inline constexpr std::string_view mrMoveDownKeyCode = "mrMoveDownKeyCode";
inline constexpr std::string_view mrMoveDownModifiers = "mrMoveDownModifiers";
inline constexpr std::string_view mrCycleWindowsKeyCode = "mrCycleWindowsKeyCode";
inline constexpr std::string_view mrCycleWindowsModifiers = "mrCycleWindowsModifiers";
inline constexpr std::string_view mrExitModeKeyCode = "mrExitModeKeyCode";
inline constexpr std::string_view mrExitModeModifiers = "mrExitModeModifiers";
inline constexpr std::string_view mrMinimizeKeyCode = "mrMinimizeKeyCode";
inline constexpr std::string_view mrMinimizeModifiers = "mrMinimizeModifiers";
inline constexpr std::string_view mrResizeModifierFlags = "mrResizeModifierFlags";
inline constexpr std::string_view keyboardLayoutProfile = "keyboardLayoutProfile";

inline constexpr std::string_view overlayBorderColor = "overlayBorderColor";
inline constexpr std::string_view overlayBackgroundColor = "overlayBackgroundColor";
inline constexpr std::string_view overlayBorderWidth = "overlayBorderWidth";
inline constexpr std::string_view overlayBorderRadius = "overlayBorderRadius";
inline constexpr std::string_view textBorderColor = "textBorderColor";
inline constexpr std::string_view textBackgroundColor = "textBackgroundColor";
inline constexpr std::string_view textBorderWidth = "textBorderWidth";
inline constexpr std::string_view textColor = "textColor";
inline constexpr std::string_view textSize = "textSize";
inline constexpr std::string_view textBorderRadius = "textBorderRadius";
inline constexpr std::string_view labelPosition = "labelPosition";
inline constexpr std::string_view isTextBold = "isTextBold";
inline constexpr std::string_view showPreviewGrid = "showPreviewGrid";

inline constexpr std::string_view wsBorderColor = "wsBorderColor";
inline constexpr std::string_view wsBackgroundColor = "wsBackgroundColor";
inline constexpr std::string_view wsBorderWidth = "wsBorderWidth";
inline constexpr std::string_view wsBorderRadius = "wsBorderRadius";
inline constexpr std::string_view wsTextBorderColor = "wsTextBorderColor";
inline constexpr std::string_view wsTextBackgroundColor = "wsTextBackgroundColor";
inline constexpr std::string_view wsTextBorderWidth = "wsTextBorderWidth";
inline constexpr std::string_view wsTextColor = "wsTextColor";
inline constexpr std::string_view wsTextSize = "wsTextSize";
inline constexpr std::string_view wsTextBorderRadius = "wsTextBorderRadius";
inline constexpr std::string_view wsTextBold = "wsTextBold";
inline constexpr std::string_view wsLabelPosition = "wsLabelPosition";
inline constexpr std::string_view showWindowInfo = "showWindowInfo";
inline constexpr std::string_view fsDefaultDisplayMode = "fsDefaultDisplayMode";

inline constexpr std::string_view mrSelectionColorHex = "mrSelectionColorHex";
inline constexpr std::string_view mrSelectionBorderWidth = "mrSelectionBorderWidth";
inline constexpr std::string_view mrSelectionGlow = "mrSelectionGlow";
inline constexpr std::string_view mrSnapTargetColorHex = "mrSnapTargetColorHex";
inline constexpr std::string_view mrSnapTargetBorderWidth = "mrSnapTargetBorderWidth";
inline constexpr std::string_view mrSnapTargetGlow = "mrSnapTargetGlow";
inline constexpr std::string_view mrCornerRadius = "mrCornerRadius";
inline constexpr std::string_view mrSnapEnabled = "mrSnapEnabled";
inline constexpr std::string_view mrSnapThreshold = "mrSnapThreshold";
inline constexpr std::string_view mrSnapResistance = "mrSnapResistance";
inline constexpr std::string_view mrMoveStep = "mrMoveStep";

inline constexpr std::string_view savedThemes = "savedThemes";
inline constexpr std::string_view savedSwitcherThemes = "savedSwitcherThemes";
inline constexpr std::string_view savedMoveResizeThemes = "savedMoveResizeThemes";
inline constexpr std::string_view startAtLoginEnabled = "startAtLoginEnabled";
inline constexpr std::string_view selectedLayoutIDs = "selectedLayoutIDs";
inline constexpr std::string_view layoutShortcuts = "layoutShortcuts";
inline constexpr std::string_view didSeedDefaultLayouts = "didSeedDefaultLayouts";

} // namespace settingsKeys

} // namespace quorvel
