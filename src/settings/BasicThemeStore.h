#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Signal.h"
#include "platform/PropertyValue.h"
#include "settings/MoveResizeTheme.h"
#include "settings/Settings.h"
#include "settings/SwitcherTheme.h"
#include "settings/Theme.h"
#include "settings/ThemeKind.h"

namespace quorvel {

class Log;

// The saved themes of one kind, in the order in which they were made.
template <class Record>
class BasicThemeStore {
public:
    static constexpr std::string_view storageKey = ThemeKind<Record>::storageKey;

    // Loads what is stored.
    BasicThemeStore(Settings settings, Log& log);

    const std::vector<Record>& themes() const { return published; }

    // Calls `observer` after each change of themes(), until the token goes.
    Subscription observeThemes(std::function<void()> observer) { return themesChanged.observe(std::move(observer)); }

    // A stored document that cannot be read is logged and leaves no themes; it stays as it is until the next save.
    void load();

    // Loads where another document is stored than the one that was loaded or saved last, as after an import. A document
    // that cannot be read is so logged once only.
    void follow();

    // Themes that cannot be written are logged; what is stored stays as it is.
    void save();

    // Each of these saves. A theme is known by its id. One that is not in here is not renamed, and nothing happens;
    // to remove it saves all the same.
    void add(Record theme);
    void rename(const Record& theme, std::string newName);
    void remove(const Record& theme);

private:
    void publish(std::vector<Record> themes);

    Settings settings;
    Log& log;
    std::optional<PropertyData> lastDocument; // that was loaded or saved
    std::vector<Record> published;
    Signal<> themesChanged;
};

extern template class BasicThemeStore<Theme>;
extern template class BasicThemeStore<SwitcherTheme>;
extern template class BasicThemeStore<MoveResizeTheme>;

} // namespace quorvel
