#include "preferences/ShortcutPreferencesView.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <utility>

#include <fmt/format.h>

#include "platform/KeyboardLayout.h"
#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "preferences/ControlValues.h"
#include "preferences/PaneButtons.h"
#include "preferences/SettingRow.h"
#include "preferences/ShortcutRow.h"
#include "preferences/ShortcutText.h"

namespace quorvel {

namespace {

constexpr std::string_view recordSuffix = ".record";
constexpr std::string_view clearSuffix = ".clear";
constexpr std::string_view resetID = "resetAllShortcuts";
constexpr std::string_view confirmID = "resetAllShortcuts.confirm";
constexpr std::string_view cancelID = "resetAllShortcuts.cancel";

// Modifiers that turn keys that move into keys that resize, as flags of key events.
struct ResizeModifier {
    std::string_view title;
    std::uint64_t flag;
};

constexpr std::array<ResizeModifier, 4> resizeModifiers{{
    {"⇧ Shift", eventFlags::shift},
    {"⌘ Command", eventFlags::command},
    {"⌥ Option", eventFlags::option},
    {"⌃ Control", eventFlags::control},
}};

std::span<const PickerChoice> profileChoices()
{
    static const auto choices = [] {
        std::array<PickerChoice, allKeyboardLayoutProfiles.size()> result;
        std::ranges::transform(allKeyboardLayoutProfiles, result.begin(), [](KeyboardLayoutProfile profile) {
            return PickerChoice{rawValue(profile), rawValue(profile)};
        });
        return result;
    }();
    return choices;
}

// The pickers of texts, with the section of shortcuts whose end each of them stands at.
std::span<const SettingGroup> pickerGroups()
{
    static const std::array profileRows{
        SettingRow{"", settingsKeys::keyboardLayoutProfile, PickerBinding{profileChoices()}, {}}};
    static const std::array popupRows{
        SettingRow{"Popup position", settingsKeys::fsPopupPosition, PickerBinding{labelPositionChoices()}, {}}};
    static const std::array groups{SettingGroup{"Keyboard Layout", profileRows},
                                   SettingGroup{"Focus Switcher", popupRows}};
    return groups;
}

FormRow resizeModifierRow(const Settings& settings)
{
    PickerControl picker;
    const auto stored = settings.boundInteger(settingsKeys::mrResizeModifierFlags);
    for (const auto& modifier : resizeModifiers) {
        if (std::cmp_equal(stored, modifier.flag)) {
            picker.selected = picker.choices.size();
        }
        picker.choices.emplace_back(modifier.title);
    }
    return {.id = std::string(settingsKeys::mrResizeModifierFlags),
            .title = "Resize modifier",
            .control = std::move(picker),
            .help = {},
            .accessibleName = "Move/Resize Mode, Resize modifier",
            .isEnabled = true};
}

void storeResizeModifier(const ControlValue& value, Settings& settings)
{
    const auto key = settingsKeys::mrResizeModifierFlags;
    const auto index = static_cast<std::size_t>(sentValue<std::int64_t>(key, value));
    if (index >= resizeModifiers.size()) {
        fatalError(fmt::format("The picker \"{}\" has no choice {}", key, index));
    }
    settings.setInteger(key, static_cast<std::int64_t>(resizeModifiers[index].flag));
}

std::string accessibleName(const ShortcutRow& row)
{
    return fmt::format("{}, {}", row.section, row.title);
}

PaneButton rowButton(const ShortcutRow& row, std::string_view suffix, std::string_view title)
{
    auto button = titledButton(std::string(row.keys.keyCode) + std::string(suffix), title);
    button.accessibleName = fmt::format("{}: {}", accessibleName(row), title);
    return button;
}

} // namespace

ShortcutPreferencesView::ShortcutPreferencesView(const Platform& platform)
    : platform(platform), settings(platform.userDefaults)
{
    for (const auto& definition : shortcutRows()) {
        const auto index = rows.size();
        const ShortcutPreferencesViewModel::Actions actions{
            .setKeyCode = [this,
                           &definition](KeyCode keyCode) { settings.setInteger(definition.keys.keyCode, keyCode); },
            .setModifiers = [this, &definition](
                                std::uint32_t modifiers) { settings.setInteger(definition.keys.modifiers, modifiers); },
            .postShortcutChanged = [this, index] { shortcutDidChange(*rows[index]); },
        };
        rows.push_back(
            std::make_unique<Row>(definition, ShortcutPreferencesViewModel(platform.eventMonitors, actions)));
        rows.back()->recordingChanges = rows.back()->model.observeRecording([this] { formChanged.emit(); });
    }
    foreignChanges = platform.userDefaults.observeForeignChanges([this] { formChanged.emit(); });
}

Form ShortcutPreferencesView::form() const
{
    Form form;
    const auto pickers = pickerGroups();
    form.groups.push_back(formGroup(pickers.front(), settings));
    form.groups.front().rows.front().accessibleName = form.groups.front().title; // the row has no title of its own
    for (const auto& row : rows) {
        if (form.groups.back().title != row->definition.section) {
            form.groups.push_back({.title = std::string(row->definition.section), .rows = {}});
        }
        form.groups.back().rows.push_back(formRow(*row));
    }
    for (const auto& picker : pickers.subspan(1)) {
        const auto group = std::ranges::find(form.groups, picker.title, &FormGroup::title);
        std::ranges::move(formGroup(picker, settings).rows, std::back_inserter(group->rows));
    }
    form.groups.back().rows.push_back(resizeModifierRow(settings));
    form.buttons.push_back(titledButton(resetID, "Reset All Shortcuts"));
    form.alert = alert();
    return form;
}

FormRow ShortcutPreferencesView::formRow(const Row& row) const
{
    const auto shortcut = shownShortcut(row.definition, settings);
    const auto profile = keyboardLayoutProfile(settings);
    return {.id = std::string(row.definition.keys.keyCode),
            .title = std::string(row.definition.title),
            .control =
                ShortcutControl{
                    .text = shortcutText(shortcut, profile),
                    .spelledOut = spelledOutShortcut(shortcut, profile, platform.keyboardLayout.modifierNames()),
                    .isRecording = row.model.recording(),
                    .record = rowButton(row.definition, recordSuffix, row.model.recording() ? "Stop" : "Record"),
                    .clear = rowButton(row.definition, clearSuffix, "Clear"),
                },
            .help = helpLine(row),
            .accessibleName = accessibleName(row.definition),
            .isEnabled = true};
}

// A finding holds only as long as neither the row nor the other one has got another shortcut.
std::string ShortcutPreferencesView::helpLine(const Row& row) const
{
    if (!row.finding || shownShortcut(row.definition, settings) != row.finding->shortcut) {
        return {};
    }
    const auto* const other = row.finding->holder.row;
    const bool stillHolds = other == nullptr || isHeldBy(*other, row.definition, settings);
    return stillHolds ? holderText(row.finding->holder) : std::string();
}

std::optional<PaneAlert> ShortcutPreferencesView::alert() const
{
    if (!showResetConfirm) {
        return std::nullopt;
    }
    return PaneAlert{.title = "Reset all shortcuts to defaults?",
                     .message = "This will discard your current keyboard shortcut customizations.",
                     .field = std::nullopt,
                     .buttons = {titledButton(confirmID, "Reset All Shortcuts", ButtonRole::destructive),
                                 titledButton(cancelID, "Cancel", ButtonRole::cancel)}};
}

void ShortcutPreferencesView::set(std::string_view id, const ControlValue& value)
{
    if (id == settingsKeys::mrResizeModifierFlags) {
        storeResizeModifier(value, settings);
    } else if (const auto* const row = settingRow(pickerGroups(), id)) {
        storeSentValue(*row, value, settings);
    } else {
        reportUnknownControl(id);
    }
    formChanged.emit();
}

void ShortcutPreferencesView::press(std::string_view id)
{
    if (id == resetID) {
        showResetConfirm = true;
        formChanged.emit();
    } else if (!pressAlert(id) && !pressRow(id)) {
        reportUnknownControl(id);
    }
}

bool ShortcutPreferencesView::pressRow(std::string_view id)
{
    for (const auto& row : rows) {
        const auto keyCode = row->definition.keys.keyCode;
        if (!id.starts_with(keyCode)) {
            continue;
        }
        const auto suffix = id.substr(keyCode.size());
        if (suffix == recordSuffix) {
            if (!row->model.recording()) {
                stopRecording(); // one key is for one row
            }
            row->model.toggleRecording();
            return true;
        }
        if (suffix == clearSuffix) {
            row->model.clear();
            return true;
        }
    }
    return false;
}

bool ShortcutPreferencesView::pressAlert(std::string_view id)
{
    if (!showResetConfirm || (id != confirmID && id != cancelID)) {
        return false;
    }
    showResetConfirm = false;
    if (id == confirmID) {
        resetShortcuts(settings);
        for (const auto& row : rows) {
            row->finding.reset();
        }
        postShortcutChanged();
    }
    formChanged.emit();
    return true;
}

void ShortcutPreferencesView::stopRecording()
{
    for (const auto& row : rows) {
        row->model.stopRecording();
    }
}

// Whether another program holds the shortcut can be found out only now: the hot keys rest, so none of them is in the
// way.
void ShortcutPreferencesView::shortcutDidChange(Row& row)
{
    row.finding.reset();
    const auto shortcut = shownShortcut(row.definition, settings);
    if (shortcut.keyCode != 0) {
        if (const auto holder = holderOfShortcut(row.definition, settings, platform.hotKeys)) {
            row.finding = Finding{shortcut, *holder};
        }
    }
    postShortcutChanged();
    formChanged.emit();
}

void ShortcutPreferencesView::postShortcutChanged()
{
    platform.notificationCenter.post(notificationNames::shortcutDidChange, noNotificationObject);
}

} // namespace quorvel
