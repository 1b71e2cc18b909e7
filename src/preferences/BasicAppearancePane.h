#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/Signal.h"
#include "platform/FormModel.h"
#include "preferences/BasicThemesListView.h"
#include "preferences/SettingRow.h"
#include "settings/Settings.h"
#include "settings/ThemeStore.h"

namespace quorvel {

struct Platform;

// In what the appearance panes differ, besides their previews.
struct AppearancePaneTexts {
    std::string_view note;
    std::span<const SettingGroup> groups;
    std::string_view footnote;
    std::string_view saveMessage;
    std::string_view resetTitle;
    std::string_view resetMessage;
};

// A pane whose controls are bound to the settings that a kind of theme is a snapshot of: it previews them, saves them
// as a theme, manages the saved themes and resets the settings.
template <class Record>
class BasicAppearancePane : public FormModel {
public:
    Form form() const override;
    Subscription observe(std::function<void()> observer) override { return changed.observe(std::move(observer)); }
    void set(std::string_view id, const ControlValue& value) override;
    void press(std::string_view id) override;

protected:
    // `platform` and what the texts point to outlive the pane.
    BasicAppearancePane(const Platform& platform, const AppearancePaneTexts& texts);

    // The group at the end of the form.
    virtual FormGroup previewGroup() const = 0;

    // A control of that group was used. False for any other id.
    virtual bool setPreviewControl(std::string_view id, const ControlValue& value);

    const Platform& platform;
    Settings settings;
    Signal<> changed;

private:
    std::optional<PaneAlert> alert() const;
    bool pressAlert(std::string_view id);
    void saveTheme();

    AppearancePaneTexts texts;
    BasicThemeStore<Record> store;
    BasicThemesListView<Record> themesList;
    bool showThemesList = false;
    bool showSaveAlert = false;
    std::string themeNameToSave;
    bool showResetConfirm = false;
    Subscription listChanges;
    Subscription foreignChanges;
};

extern template class BasicAppearancePane<Theme>;
extern template class BasicAppearancePane<SwitcherTheme>;
extern template class BasicAppearancePane<MoveResizeTheme>;

} // namespace quorvel
