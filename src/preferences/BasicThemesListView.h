#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Signal.h"
#include "platform/FormModel.h"
#include "platform/ListSheet.h"
#include "platform/PaneAlert.h"
#include "settings/ThemeStore.h"

namespace quorvel {

class Dates;

// The sheet with the saved themes of one kind, and the alerts over it. The pane under it shows both in its form, and
// hands on what happens to their controls.
template <class Record>
class BasicThemesListView {
public:
    struct Actions {
        std::function<void(const Record&)> apply;
        std::function<void()> close;
    };

    // `store` and `dates` outlive the view.
    BasicThemesListView(BasicThemeStore<Record>& store, const Dates& dates, Actions actions);

    ListSheet sheet() const;
    std::optional<PaneAlert> alert() const;

    // Calls `changed` after sheet() or alert() has changed, until the token goes.
    Subscription observe(std::function<void()> changed) { return contentChanged.observe(std::move(changed)); }

    // A control of the sheet or the alert was used. False for an id or a value that belongs to neither.
    bool set(std::string_view id, const ControlValue& value);
    bool press(std::string_view id);

private:
    enum class Question { rename, removal };

    // A theme about which something is being asked.
    struct Pending {
        Question question = Question::removal;
        Record theme;
        std::string newName;
    };

    std::vector<std::string> rowIDs() const;
    std::vector<PaneButton> buttons(const std::string& rowID, const Record& theme) const;
    bool pressRow(std::string_view id);
    bool pressAlert(std::string_view id);
    void ask(Question question, const Record& theme);
    void followStore();
    void answer();

    BasicThemeStore<Record>& store;
    const Dates& dates;
    Actions actions;
    std::optional<Pending> pending;
    Signal<> contentChanged;
    Subscription storeChanges;
};

extern template class BasicThemesListView<Theme>;
extern template class BasicThemesListView<SwitcherTheme>;
extern template class BasicThemesListView<MoveResizeTheme>;

} // namespace quorvel
