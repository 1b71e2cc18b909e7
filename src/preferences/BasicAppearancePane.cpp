#include "preferences/BasicAppearancePane.h"

#include <utility>

#include "platform/Dates.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "preferences/ControlValues.h"
#include "preferences/PaneButtons.h"
#include "settings/ThemeSettings.h"

namespace quorvel {

namespace {

constexpr std::string_view saveID = "save";
constexpr std::string_view manageID = "manage";
constexpr std::string_view resetID = "reset";
constexpr std::string_view saveNameID = "save.name";
constexpr std::string_view saveConfirmID = "save.confirm";
constexpr std::string_view saveCancelID = "save.cancel";
constexpr std::string_view resetConfirmID = "reset.confirm";
constexpr std::string_view resetCancelID = "reset.cancel";

} // namespace

template <class Record>
BasicAppearancePane<Record>::BasicAppearancePane(const Platform& platform, const AppearancePaneTexts& texts)
    : platform(platform),
      settings(platform.userDefaults),
      texts(texts),
      store(settings, platform.log),
      themesList(store, platform.dates,
                 {.apply =
                      [this](const Record& theme) {
                          applyTheme(theme, settings);
                          changed.emit();
                      },
                  .close =
                      [this] {
                          showThemesList = false;
                          changed.emit();
                      }}),
      listChanges(themesList.observe([this] { changed.emit(); })),
      foreignChanges(platform.userDefaults.observeForeignChanges([this] {
          store.follow();
          changed.emit();
      }))
{}

template <class Record>
Form BasicAppearancePane<Record>::form() const
{
    Form form{
        .note = std::string(texts.note),
        .groups = {},
        .footnote = std::string(texts.footnote),
        .buttons = {titledButton(saveID, "Save Current Theme"), titledButton(manageID, "Manage Themes…"),
                    titledButton(resetID, "Reset to Defaults")},
        .sheet = showThemesList ? std::optional(themesList.sheet()) : std::nullopt,
        .alert = alert(),
    };
    for (const auto& group : texts.groups) {
        form.groups.push_back(formGroup(group, settings));
    }
    form.groups.push_back(previewGroup());
    return form;
}

template <class Record>
void BasicAppearancePane<Record>::set(std::string_view id, const ControlValue& value)
{
    if (const auto* const row = settingRow(texts.groups, id)) {
        storeSentValue(*row, value, settings);
    } else if (showSaveAlert && id == saveNameID) {
        themeNameToSave = sentValue<std::string>(id, value);
    } else if (setPreviewControl(id, value)) {
        // The preview has followed.
    } else if (showThemesList && themesList.set(id, value)) {
        return; // which has told
    } else {
        reportUnknownControl(id);
    }
    changed.emit();
}

template <class Record>
void BasicAppearancePane<Record>::press(std::string_view id)
{
    if (id == saveID) {
        themeNameToSave.clear();
        showSaveAlert = true;
    } else if (id == manageID) {
        showThemesList = true;
    } else if (id == resetID) {
        showResetConfirm = true;
    } else if (pressAlert(id)) {
        // The alert is gone.
    } else if (showThemesList && themesList.press(id)) {
        return; // which has told
    } else {
        reportUnknownControl(id);
    }
    changed.emit();
}

template <class Record>
bool BasicAppearancePane<Record>::setPreviewControl(std::string_view, const ControlValue&)
{
    return false;
}

template <class Record>
std::optional<PaneAlert> BasicAppearancePane<Record>::alert() const
{
    if (showSaveAlert) {
        return PaneAlert{
            .title = "Save as theme",
            .message = std::string(texts.saveMessage),
            .field = PaneTextField{.id = std::string(saveNameID), .placeholder = "Theme name", .text = themeNameToSave},
            .buttons = {titledButton(saveConfirmID, "Save", ButtonRole::confirm),
                        titledButton(saveCancelID, "Cancel", ButtonRole::cancel)},
        };
    }
    if (showResetConfirm) {
        return PaneAlert{
            .title = std::string(texts.resetTitle),
            .message = std::string(texts.resetMessage),
            .field = std::nullopt,
            .buttons = {titledButton(resetConfirmID, "Reset to Defaults", ButtonRole::destructive),
                        titledButton(resetCancelID, "Cancel", ButtonRole::cancel)},
        };
    }
    return showThemesList ? themesList.alert() : std::nullopt;
}

template <class Record>
bool BasicAppearancePane<Record>::pressAlert(std::string_view id)
{
    const bool answersSave = showSaveAlert && (id == saveConfirmID || id == saveCancelID);
    const bool answersReset = showResetConfirm && (id == resetConfirmID || id == resetCancelID);
    if (answersSave) {
        showSaveAlert = false;
    } else if (answersReset) {
        showResetConfirm = false;
    }
    if (answersSave && id == saveConfirmID) {
        saveTheme();
    } else if (answersReset && id == resetConfirmID) {
        resetThemedSettings<Record>(settings);
    }
    return answersSave || answersReset;
}

template <class Record>
void BasicAppearancePane<Record>::saveTheme()
{
    store.add(captureTheme<Record>(settings, std::move(themeNameToSave), platform.dates.now()));
    themeNameToSave.clear();
}

template class BasicAppearancePane<Theme>;
template class BasicAppearancePane<SwitcherTheme>;
template class BasicAppearancePane<MoveResizeTheme>;

} // namespace quorvel
