#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Signal.h"
#include "platform/FormModel.h"
#include "preferences/ShortcutHolder.h"
#include "preferences/ShortcutPreferencesViewModel.h"
#include "settings/Settings.h"

namespace quorvel {

struct Platform;

// The pane for shortcuts. A row has the id of its key-code setting, its buttons that id with ".record" or ".clear"
// behind it. A shortcut that somebody else holds is recorded all the same; the row's help line then says who.
class ShortcutPreferencesView final : public FormModel {
public:
    // `platform` outlives the pane.
    explicit ShortcutPreferencesView(const Platform& platform);

    Form form() const override;
    Subscription observe(std::function<void()> changed) override { return formChanged.observe(std::move(changed)); }
    void set(std::string_view id, const ControlValue& value) override;
    void press(std::string_view id) override;

    // For when the pane goes out of sight: a key that is typed elsewhere is none to record.
    void stopRecording();

private:
    // What was found out about a shortcut when it was recorded.
    struct Finding {
        Shortcut shortcut;
        ShortcutHolder holder;
    };

    struct Row {
        const ShortcutRow& definition;
        ShortcutPreferencesViewModel model;
        std::optional<Finding> finding;
        Subscription recordingChanges;
    };

    FormRow formRow(const Row& row) const;
    std::string helpLine(const Row& row) const;
    std::optional<PaneAlert> alert() const;
    bool pressRow(std::string_view id);
    bool pressAlert(std::string_view id);
    void shortcutDidChange(Row& row);
    void postShortcutChanged();

    const Platform& platform;
    Settings settings;
    std::vector<std::unique_ptr<Row>> rows;
    bool showResetConfirm = false;
    Signal<> formChanged;
    Subscription foreignChanges;
};

} // namespace quorvel
